// Masking in one pass: the same outcome as replacing mask after mask wherever no mask meets the
// placeholder, an end in bounded time where one does, and the masked console kept per answer.

#include "AutoComparador.h"
#include "ComparatorFixture.h"
#include "MaskTable.h"
#include "Masker.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

const QString P = Masker::placeholder().toString();

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

class TestMasker : public QObject
{
    Q_OBJECT
private slots:
    void sameAsOneMaskAfterAnother_data();
    void sameAsOneMaskAfterAnother();
    void placeholderNeverMaskedAgain_data();
    void placeholderNeverMaskedAgain();
    void growingConsole_data();
    void growingConsole();
    void masksReadOncePerChange();
};

void TestMasker::sameAsOneMaskAfterAnother_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("masks");

    QTest::newRow("no masks") << QStringLiteral("Serial: 4F2A") << QStringList{};
    QTest::newRow("every occurrence, any case") << QStringLiteral("ECID abc, ecid ABC, aBc")
                                                << QStringList{QStringLiteral("abc")};
    QTest::newRow("an earlier mask wins though it starts later")
        << QStringLiteral("abcd") << QStringList{QStringLiteral("bcd"), QStringLiteral("abc")};
    QTest::newRow("an earlier mask wins where it starts first")
        << QStringLiteral("abcd") << QStringList{QStringLiteral("abc"), QStringLiteral("bcd")};
    QTest::newRow("a mask overlapping itself: left to right")
        << QStringLiteral("aaaaa") << QStringList{QStringLiteral("aa")};
    QTest::newRow("longest first keeps the whole line")
        << QStringLiteral("Serial: 4F2A / serial 4f2a")
        << QStringList{QStringLiteral("Serial: 4F2A"), QStringLiteral("Serial"), QStringLiteral("4F2A")};
    QTest::newRow("a shorter mask given first cuts a longer one")
        << QStringLiteral("serial") << QStringList{QStringLiteral("ser"), QStringLiteral("serial")};
    QTest::newRow("later occurrences blocked one by one")
        << QStringLiteral("abcdebcde") << QStringList{QStringLiteral("cd"), QStringLiteral("bcde")};
    QTest::newRow("blocked, then free again after the block")
        << QStringLiteral("zzabzzzab") << QStringList{QStringLiteral("b"), QStringLiteral("zza"), QStringLiteral("z")};
    QTest::newRow("the same mask in two cases")
        << QStringLiteral("id abc ABC") << QStringList{QStringLiteral("abc"), QStringLiteral("ABC"), QStringLiteral("abc")};
    QTest::newRow("accented letters ignore case")
        << QStringLiteral("éclair ÉCLAIR Éclair") << QStringList{QStringLiteral("ÉCLAIR")};
    QTest::newRow("final sigma folds like sigma")
        << QStringLiteral("ΣΟΣ σος") << QStringList{QStringLiteral("σοσ")};
    QTest::newRow("characters beyond the basic plane")
        << QStringLiteral("a\U0001F600b \U0001F600") << QStringList{QStringLiteral("\U0001F600")};
    QTest::newRow("quotes and brackets are plain text")
        << QStringLiteral("it's [0x1] (it's)") << QStringList{QStringLiteral("it's"), QStringLiteral("[0x1]")};
    QTest::newRow("empty masks mask nothing") << QStringLiteral("abc") << QStringList{QString(), QStringLiteral("b")};
    QTest::newRow("empty text") << QString() << QStringList{QStringLiteral("a")};

    // So many different characters that the automaton walks its trie instead of its table.
    QStringList wide;
    QString wideText;
    for (int i = 0; i < 1200; ++i) {
        wide << QString(QChar(0x4E00 + i)) + QChar(0x4E00 + (i * 7) % 1500) + QChar(0x4E00 + (i * 13) % 1500);
        wideText += QChar(0x4E00 + (i * 5) % 1500);
    }
    wideText += wide.at(3) + wide.at(700).toLower() + wide.at(1199);
    QTest::newRow("thousands of different characters") << wideText << wide;

    // Tables nobody would write by hand, so overlaps of every kind come up.
    QRandomGenerator random(1414);
    for (int i = 0; i < 300; ++i) {
        const auto [text, masks] = randomTable(random);
        QTest::addRow("random %d", i) << text << masks;
    }
}

void TestMasker::sameAsOneMaskAfterAnother()
{
    QFETCH(QString, text);
    QFETCH(QStringList, masks);
    const QString expected = maskOneAfterAnother(text, masks);
    Masker masker(masks);
    QCOMPARE(masker.mask(text), expected);
    // Masks collected one by one, as for masks nested over long runs of one letter.
    masker.setOccurrenceBudget(0);
    QCOMPARE(masker.mask(text), expected);
}

void TestMasker::placeholderNeverMaskedAgain_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("masks");
    QTest::addColumn<QString>("expected");

    const QStringList twelveX(12, QStringLiteral("x"));
    QTest::newRow("twelve masks x") << QStringLiteral("box x") << twelveX
                                    << QStringLiteral("bo") + P + QStringLiteral(" ") + P;
    QTest::newRow("twelve masks x over a long answer")
        << QString(3000, u'x') << twelveX << P.repeated(3000);
    QTest::newRow("the same mask twice applies once")
        << QStringLiteral("Xa") << QStringList{QStringLiteral("x"), QStringLiteral("X")} << P + QStringLiteral("a");
    QTest::newRow("the placeholder's own sign") << QStringLiteral("a®b")
                                                << QStringList{QStringLiteral("®"), QStringLiteral("x")}
                                                << QStringLiteral("a") + P + QStringLiteral("b");
    QTest::newRow("a placeholder already in the text, masked as text once")
        << QStringLiteral("id ") + P << QStringList{QStringLiteral("xxxxx\u00AE"), QStringLiteral("x")}
        << QStringLiteral("id ") + P;
    QTest::newRow("a mask ending like the placeholder begins")
        << QStringLiteral("ab12") << QStringList{QStringLiteral("b12"), QStringLiteral("ax")}
        << QStringLiteral("a") + P;
    QTest::newRow("masks nested over a run of one letter")
        << QString(500, u'x')
        << QStringList{QStringLiteral("xxxxxxx"), QStringLiteral("xxx"), QStringLiteral("xx"), QStringLiteral("x")}
        << P.repeated(72);
}

void TestMasker::placeholderNeverMaskedAgain()
{
    QFETCH(QString, text);
    QFETCH(QStringList, masks);
    QFETCH(QString, expected);
    Masker masker(masks);
    QCOMPARE(masker.mask(text), expected);
    masker.setOccurrenceBudget(0);
    QCOMPARE(masker.mask(text), expected);
}

void TestMasker::growingConsole_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("appended");
    QTest::addColumn<QStringList>("masks");

    const QString answer = fixture::consoleAnswer(QStringLiteral("syscfg print SrNm"), {QStringLiteral("C39TK0ABHG7F")});
    QTest::newRow("mask inside the new answer") << answer << QStringLiteral("\r\n") + answer
                                                << QStringList{QStringLiteral("C39TK0ABHG7F")};
    QTest::newRow("mask across the border") << QStringLiteral("serial C39TK0") << QStringLiteral("ABHG7F and more")
                                            << QStringList{QStringLiteral("C39TK0ABHG7F"), QStringLiteral("ABHG")};
    QTest::newRow("mask ending at the border") << QStringLiteral("id C39TK0") << QStringLiteral("ABHG7F")
                                               << QStringList{QStringLiteral("C39TK0"), QStringLiteral("K0AB")};
    QTest::newRow("mask starting at the border") << QStringLiteral("id ") << QStringLiteral("C39 C39")
                                                 << QStringList{QStringLiteral("C39"), QStringLiteral("d C")};
    QTest::newRow("nothing appended") << answer << QString() << QStringList{QStringLiteral("SrNm")};
}

void TestMasker::growingConsole()
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

void TestMasker::masksReadOncePerChange()
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
    Database other(path);
    QVERIFY(other.addMaskText(QStringLiteral("ECID 0011")));
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

QTEST_GUILESS_MAIN(TestMasker)
#include "tst_masker.moc"
