// The automatic comparison and the masking behind it, as tables of console and recorded texts.
// Masking runs in one pass: the same outcome as replacing mask after mask wherever no mask meets
// the placeholder, an end in bounded time where one does, and the masked console kept per answer.

#include "AutoComparador.h"
#include "ComparatorFixture.h"
#include "MaskTable.h"
#include "Masker.h"

#include <QRandomGenerator>
#include <QTest>

using Mark = AutoComparador::Mark;
Q_DECLARE_METATYPE(AutoComparador::Mark)

namespace {

const QString P = Masker::placeholder().toString();
const QString Answer = fixture::consoleAnswer(QStringLiteral("nand --getinfo"),
                                              {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB"),
                                               QStringLiteral("Serial: 4F2A77C1")});

// The rule masking has always had: each mask in turn replaces all its occurrences, ignoring case.
QString maskOneAfterAnother(QString text, const QStringList &masks)
{
    for (const QString &m : masks)
        if (!m.isEmpty())
            text.replace(m, P, Qt::CaseInsensitive);
    return text;
}

// A random text and masks over letters that never occur in the placeholder.
QPair<QString, QStringList> randomTable(QRandomGenerator &random)
{
    static const QString letters = QStringLiteral("abAB0é");
    auto word = [&](int min, int max) {
        QString w;
        for (int i = random.bounded(min, max + 1); i > 0; --i)
            w += letters.at(random.bounded(int(letters.size())));
        return w;
    };
    QStringList masks;
    for (int i = random.bounded(1, 7); i > 0; --i)
        masks << word(1, 4);
    return {word(0, 40), masks};
}

} // namespace

class TestAutoComparador : public QObject
{
    Q_OBJECT
private slots:
    void evaluate_data()
    {
        QTest::addColumn<QString>("console");
        QTest::addColumn<QString>("recorded");
        QTest::addColumn<QStringList>("masks");
        QTest::addColumn<bool>("longAnswer");
        QTest::addColumn<Mark>("expected");
        const QStringList none;
        const QString changed = QString(Answer).replace(QStringLiteral("64GB"), QStringLiteral("32GB"));
        const QString cmd = QStringLiteral("nand --getinfo");
        QTest::newRow("identical answer") << Answer << Answer << none << false << Mark::Shown;
        QTest::newRow("identical, other letter case") << Answer.toUpper() << Answer << none << false << Mark::Shown;
        QTest::newRow("body changed") << changed << Answer << none << false << Mark::Hidden;
        QTest::newRow("a line missing in the middle")
            << fixture::consoleAnswer(cmd, {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Serial: 4F2A77C1")}) << Answer
            << none << false << Mark::Hidden;
        // The fresh answer only has to be found inside the recorded one: a head of it still matches.
        QTest::newRow("last line missing: still found")
            << fixture::consoleAnswer(cmd, {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB")}) << Answer << none
            << false << Mark::Shown;
        QTest::newRow("prompt numbers differ: the prompt line is cut")
            << QString(Answer).replace(QStringLiteral("0000002a"), QStringLiteral("00000abc")) << Answer << none << false
            << Mark::Shown;
        // "Auto" unchecked: the console holds the previous answer, a line break and the new one.
        QTest::newRow("accumulated console") << Answer + QStringLiteral("\r\n") + Answer << Answer << none << false << Mark::Hidden;
        QTest::newRow("nothing recorded") << Answer << QString() << none << false << Mark::Hidden;
        QTest::newRow("long answer: left as it was") << changed << Answer << none << true << Mark::Unchanged;
        QTest::newRow("long answer even when identical") << Answer << Answer << none << true << Mark::Unchanged;

        // Masks: the serial differs between boards; the recorded answer carries the placeholder.
        const QString recordedMasked = QString(Answer).replace(QStringLiteral("4F2A77C1"), P);
        const QString otherBoard = QString(Answer).replace(QStringLiteral("4F2A77C1"), QStringLiteral("99AA00BB"));
        const QStringList serial{QStringLiteral("4F2A77C1")};
        QTest::newRow("serial masked on both sides") << Answer << recordedMasked << serial << false << Mark::Shown;
        QTest::newRow("serial of another board, not masked") << otherBoard << recordedMasked << serial << false << Mark::Hidden;
        QTest::newRow("mask in another letter case") << Answer << recordedMasked << QStringList{QStringLiteral("4f2a77c1")}
                                                     << false << Mark::Shown;
        QTest::newRow("filler marks removed before use")
            << Answer << recordedMasked << QStringList{QStringLiteral("4F2A'jox'77'nas'C1'ins'")} << false << Mark::Shown;
        QTest::newRow("filler marks are exact case")
            << Answer << recordedMasked << QStringList{QStringLiteral("4F2A'JOX'77C1")} << false << Mark::Hidden;
        // "Serial: 4F2A77C1" must go first: "Serial" alone would leave the number behind.
        QTest::newRow("longest mask first")
            << Answer << QString(Answer).replace(QStringLiteral("Serial: 4F2A77C1"), P)
            << QStringList{QStringLiteral("Serial"), QStringLiteral("Serial: 4F2A77C1")} << false << Mark::Shown;

        // The prompt cut happens only when "] :-) " stands after the first character.
        QTest::newRow("prompt after first character: cut")
            << QStringLiteral("abvalue 1\r\n[0000002a:0000001b] :-) ") << QStringLiteral("??value 1") << none << false
            << Mark::Shown;
        const QString promptFirst = QStringLiteral("] :-) 0123456789abcdefghijklmnopqrst");
        // At the first character nothing is cut, so the whole text must be found, not its first ten.
        QTest::newRow("prompt at first character: not cut")
            << promptFirst << QStringLiteral("##") + promptFirst.mid(2) << none << false << Mark::Shown;
        QTest::newRow("prompt at first character: only the head recorded")
            << promptFirst << QStringLiteral("##") + promptFirst.mid(2, 8) << none << false << Mark::Hidden;
        QTest::newRow("short text with a prompt is cut to nothing")
            << QStringLiteral("a] :-) ") << QStringLiteral("anything") << none << false << Mark::Hidden;
        // Found at the very first character counts as a mismatch.
        QTest::newRow("found at first character")
            << QStringLiteral("\r\nnand --getinfo") << QStringLiteral("nand --getinfo and more") << none << false << Mark::Hidden;
        QTest::newRow("found at second character")
            << QStringLiteral("\r\nnand --getinfo") << QStringLiteral("Xnand --getinfo and more") << none << false << Mark::Shown;
        QTest::newRow("empty console") << QString() << Answer << none << false << Mark::Hidden;
    }
    void evaluate()
    {
        QFETCH(QString, console);
        QFETCH(QString, recorded);
        QFETCH(QStringList, masks);
        QFETCH(bool, longAnswer);
        QTEST(AutoComparador::evaluate(console, recorded, masks, longAnswer), "expected");
    }

    // The stored mask texts as the two sides use them: the console's with the filler marks taken
    // out, the recorded side's as they stand.
    void fillerMarks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("masks");
        QTest::addColumn<bool>("removeFillers");
        QTest::addColumn<QString>("expected");
        QTest::newRow("longest first whatever the stored order and case")
            << QStringLiteral("id ABCD x") << QStringList{QStringLiteral("abc"), QStringLiteral("ABCD")} << true
            << QStringLiteral("id %1 x").arg(P);
        QTest::newRow("fillers removed for the console")
            << QStringLiteral("id 77") << QStringList{QStringLiteral("'jox'77")} << true << QStringLiteral("id ") + P;
        QTest::newRow("fillers kept: stored text masks nothing")
            << QStringLiteral("id 77") << QStringList{QStringLiteral("'jox'77")} << false << QStringLiteral("id 77");
        QTest::newRow("fillers kept: stored text found as it stands")
            << QStringLiteral("id 'jox'77") << QStringList{QStringLiteral("'jox'77")} << false << QStringLiteral("id ") + P;
        QTest::newRow("a mask of filler marks only masks nothing")
            << QStringLiteral("a'nas'b") << QStringList{QStringLiteral("'nas'")} << true << QStringLiteral("a'nas'b");
    }
    void fillerMarks()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, masks);
        QFETCH(bool, removeFillers);
        const auto mode = removeFillers ? AutoComparador::FillerMarks::Remove : AutoComparador::FillerMarks::Keep;
        QTEST(AutoComparador::mask(text, masks, mode), "expected");
    }

    void commandKinds_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("longAnswer");
        QTest::addColumn<bool>("buttonTest");
        QTest::newRow("testmemory") << QStringLiteral("TESTMEMORY --1MB") << true << false;
        QTest::newRow("testmemory lower") << QStringLiteral("testmemory --1mb") << true << false;
        QTest::newRow("help") << QStringLiteral("Help") << true << false;
        QTest::newRow("help with blank") << QStringLiteral("help ") << false << false;
        QTest::newRow("buttons") << QStringLiteral("BUTTONCNT --DQE") << false << true;
        QTest::newRow("buttons lower") << QStringLiteral("buttoncnt --dqe") << false << true;
        QTest::newRow("other") << QStringLiteral("nand --getinfo") << false << false;
    }
    void commandKinds()
    {
        QFETCH(QString, command);
        QTEST(AutoComparador::isLongAnswerCommand(command), "longAnswer");
        QTEST(AutoComparador::isButtonTestCommand(command), "buttonTest");
    }

    // Masks in the given order; the expected text, where none is given, is the one-after-another
    // rule's, which holds wherever no mask meets a placeholder.
    void masker_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("masks");
        QTest::addColumn<QString>("expected");
        const struct { const char *tag, *text; QStringList masks; } rows[] = {
            {"no masks", "Serial: 4F2A", {}},
            {"every occurrence, any case", "ECID abc, ecid ABC, aBc", {"abc"}},
            {"an earlier mask wins though it starts later", "abcd", {"bcd", "abc"}},
            {"an earlier mask wins where it starts first", "abcd", {"abc", "bcd"}},
            {"a mask overlapping itself: left to right", "aaaaa", {"aa"}},
            {"longest first keeps the whole line", "Serial: 4F2A / serial 4f2a", {"Serial: 4F2A", "Serial", "4F2A"}},
            {"a shorter mask given first cuts a longer one", "serial", {"ser", "serial"}},
            {"later occurrences blocked one by one", "abcdebcde", {"cd", "bcde"}},
            {"blocked, then free again after the block", "zzabzzzab", {"b", "zza", "z"}},
            {"the same mask in two cases", "id abc ABC", {"abc", "ABC", "abc"}},
            {"accented letters ignore case", "éclair ÉCLAIR Éclair", {"ÉCLAIR"}},
            {"final sigma folds like sigma", "ΣΟΣ σος", {"σοσ"}},
            {"characters beyond the basic plane", "a\U0001F600b \U0001F600", {"\U0001F600"}},
            {"quotes and brackets are plain text", "it's [0x1] (it's)", {"it's", "[0x1]"}},
            {"empty masks mask nothing", "abc", {"", "b"}},
            {"empty text", "", {"a"}},
        };
        for (const auto &r : rows)
            QTest::newRow(r.tag) << QString::fromUtf8(r.text) << r.masks << maskOneAfterAnother(QString::fromUtf8(r.text), r.masks);

        // So many different characters that the automaton walks its trie instead of its table.
        QStringList wide;
        QString wideText;
        for (int i = 0; i < 1200; ++i) {
            wide << QString(QChar(0x4E00 + i)) + QChar(0x4E00 + (i * 7) % 1500) + QChar(0x4E00 + (i * 13) % 1500);
            wideText += QChar(0x4E00 + (i * 5) % 1500);
        }
        wideText += wide.at(3) + wide.at(700).toLower() + wide.at(1199);
        QTest::newRow("thousands of different characters") << wideText << wide << maskOneAfterAnother(wideText, wide);
        // Tables nobody would write by hand, so overlaps of every kind come up.
        QRandomGenerator random(1414);
        for (int i = 0; i < 300; ++i) {
            const auto [text, masks] = randomTable(random);
            QTest::addRow("random %d", i) << text << masks << maskOneAfterAnother(text, masks);
        }

        // Where a mask meets the placeholder, a placeholder is never masked again.
        const QStringList twelveX(12, QStringLiteral("x"));
        QTest::newRow("twelve masks x") << QStringLiteral("box x") << twelveX << QStringLiteral("bo") + P + QStringLiteral(" ") + P;
        QTest::newRow("twelve masks x over a long answer") << QString(3000, u'x') << twelveX << P.repeated(3000);
        QTest::newRow("the same mask twice applies once") << QStringLiteral("Xa") << QStringList{"x", "X"} << P + QStringLiteral("a");
        QTest::newRow("the placeholder's own sign") << QStringLiteral("a®b") << QStringList{"®", "x"}
                                                    << QStringLiteral("a") + P + QStringLiteral("b");
        QTest::newRow("a placeholder already in the text, masked as text once")
            << QStringLiteral("id ") + P << QStringList{QStringLiteral("xxxxx\u00AE"), QStringLiteral("x")} << QStringLiteral("id ") + P;
        QTest::newRow("a mask ending like the placeholder begins") << QStringLiteral("ab12") << QStringList{"b12", "ax"}
                                                                   << QStringLiteral("a") + P;
        QTest::newRow("masks nested over a run of one letter") << QString(500, u'x') << QStringList{"xxxxxxx", "xxx", "xx", "x"}
                                                               << P.repeated(72);
    }
    void masker()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, masks);
        QFETCH(QString, expected);
        Masker masker(masks);
        QCOMPARE(masker.mask(text), expected);
        // Masks collected one by one, as for masks nested over long runs of one letter.
        masker.setOccurrenceBudget(0);
        QCOMPARE(masker.mask(text), expected);
    }

    void growingConsole_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("appended");
        QTest::addColumn<QStringList>("masks");
        const QString answer = fixture::consoleAnswer(QStringLiteral("syscfg print SrNm"), {QStringLiteral("C39TK0ABHG7F")});
        QTest::newRow("mask inside the new answer") << answer << QStringLiteral("\r\n") + answer << QStringList{"C39TK0ABHG7F"};
        QTest::newRow("mask across the border") << QStringLiteral("serial C39TK0") << QStringLiteral("ABHG7F and more")
                                                << QStringList{"C39TK0ABHG7F", "ABHG"};
        QTest::newRow("mask ending at the border") << QStringLiteral("id C39TK0") << QStringLiteral("ABHG7F")
                                                   << QStringList{"C39TK0", "K0AB"};
        QTest::newRow("mask starting at the border") << QStringLiteral("id ") << QStringLiteral("C39 C39") << QStringList{"C39", "d C"};
        QTest::newRow("nothing appended") << answer << QString() << QStringList{"SrNm"};
    }
    void growingConsole()
    {
        QFETCH(QString, first);
        QFETCH(QString, appended);
        QFETCH(QStringList, masks);
        const Masker masker(masks);
        GrowingMaskedText console;
        QCOMPARE(console.update(masker, 1, first, 7), masker.mask(first));
        QCOMPARE(console.update(masker, 1, first + appended, 7), masker.mask(first + appended));
        // Text set anew under a new revision: masked from the start, not appended to the old.
        QCOMPARE(console.update(masker, 1, appended, 8), masker.mask(appended));
        // Another masker: the old masked text is of no use.
        const Masker other(QStringList{QStringLiteral("id")});
        QCOMPARE(console.update(other, 2, appended + first, 8), other.mask(appended + first));
    }

    void masksReadOncePerChange()
    {
        QTemporaryDir dir;
        const QString path = fixture::makeDatabase(dir);
        Database own(path);
        QVERIFY(own.addMaskText(QStringLiteral("C39TK0'jox'ABHG7F")));
        MaskTable table(own);
        const QString answer = QStringLiteral("SrNm C39TK0ABHG7F ECID 0011");
        QCOMPARE(table.masker().mask(answer), QStringLiteral("SrNm ") + P + QStringLiteral(" ECID 0011"));
        const quint64 first = table.revision();
        table.masker();
        QCOMPARE(table.revision(), first);
        // Another program (or the administration screen's own connection) adds a mask.
        QVERIFY(Database(path).addMaskText(QStringLiteral("ECID 0011")));
        QCOMPARE(table.masker().mask(answer), QStringLiteral("SrNm ") + P + QStringLiteral(" ") + P);
        const quint64 second = table.revision();
        QVERIFY(second != first);
        table.masker();
        QCOMPARE(table.revision(), second);
        // This connection's own change counts as well.
        QVERIFY(own.addMaskText(QStringLiteral("SrNm")));
        QCOMPARE(table.masker().mask(answer), P + QStringLiteral(" ") + P + QStringLiteral(" ") + P);
        QVERIFY(table.revision() != second);
    }
};

QTEST_GUILESS_MAIN(TestAutoComparador)
#include "tst_autocomparador.moc"
