// The automatic comparison and the masking behind it, as tables of console and recorded texts.

#include "AutoComparador.h"

#include <QTest>

namespace {

const QString Prompt = QStringLiteral("[0000002a:0000001b] :-) ");

// What the exchange hands over for one command: CR LF, echo, CR CR LF, lines, prompt.
QString consoleAnswer(const QString &command, const QStringList &lines)
{
    QString text = QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n");
    for (const QString &line : lines)
        text += line + QStringLiteral("\r\n");
    return text + Prompt;
}

const QString Answer = consoleAnswer(QStringLiteral("nand --getinfo"),
                                     {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB"),
                                      QStringLiteral("Serial: 4F2A77C1")});

} // namespace

class TestAutoComparador : public QObject
{
    Q_OBJECT
private slots:
    void evaluate_data();
    void evaluate();
    void mask_data();
    void mask();
    void maskingTwiceChangesNothing();
    void commandKinds_data();
    void commandKinds();
};

using Mark = AutoComparador::Mark;
Q_DECLARE_METATYPE(AutoComparador::Mark)

void TestAutoComparador::evaluate_data()
{
    QTest::addColumn<QString>("console");
    QTest::addColumn<QString>("recorded");
    QTest::addColumn<QStringList>("masks");
    QTest::addColumn<bool>("longAnswer");
    QTest::addColumn<Mark>("expected");

    const QStringList none;
    QString changed = Answer;
    changed.replace(QStringLiteral("64GB"), QStringLiteral("32GB"));

    QTest::newRow("identical answer") << Answer << Answer << none << false << Mark::Shown;
    QTest::newRow("identical, other letter case") << Answer.toUpper() << Answer << none << false << Mark::Shown;
    QTest::newRow("body changed") << changed << Answer << none << false << Mark::Hidden;
    QTest::newRow("a line missing in the middle")
        << consoleAnswer(QStringLiteral("nand --getinfo"),
                         {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Serial: 4F2A77C1")})
        << Answer << none << false << Mark::Hidden;
    // The fresh answer only has to be found inside the recorded one: a head of it still matches.
    QTest::newRow("last line missing: still found")
        << consoleAnswer(QStringLiteral("nand --getinfo"),
                         {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB")})
        << Answer << none << false << Mark::Shown;
    QTest::newRow("prompt numbers differ: the prompt line is cut")
        << QString(Answer).replace(QStringLiteral("0000002a"), QStringLiteral("00000abc")) << Answer << none
        << false << Mark::Shown;
    // "Auto" unchecked: the console holds the previous answer, a line break and the new one.
    QTest::newRow("accumulated console") << Answer + QStringLiteral("\r\n") + Answer << Answer << none << false
                                         << Mark::Hidden;
    QTest::newRow("nothing recorded") << Answer << QString() << none << false << Mark::Hidden;
    QTest::newRow("long answer: left as it was") << changed << Answer << none << true << Mark::Unchanged;
    QTest::newRow("long answer even when identical") << Answer << Answer << none << true << Mark::Unchanged;

    // Masks: the serial differs between boards; the recorded answer carries the placeholder.
    QString recordedMasked = Answer;
    recordedMasked.replace(QStringLiteral("4F2A77C1"), AutoComparador::Placeholder);
    const QString otherBoard = QString(Answer).replace(QStringLiteral("4F2A77C1"), QStringLiteral("99AA00BB"));
    QTest::newRow("serial masked on both sides")
        << Answer << recordedMasked << QStringList{QStringLiteral("4F2A77C1")} << false << Mark::Shown;
    QTest::newRow("serial of another board, not masked")
        << otherBoard << recordedMasked << QStringList{QStringLiteral("4F2A77C1")} << false << Mark::Hidden;
    QTest::newRow("mask in another letter case")
        << Answer << recordedMasked << QStringList{QStringLiteral("4f2a77c1")} << false << Mark::Shown;
    QTest::newRow("filler marks removed before use")
        << Answer << recordedMasked << QStringList{QStringLiteral("4F2A'jox'77'nas'C1'ins'")} << false
        << Mark::Shown;
    QTest::newRow("filler marks are exact case")
        << Answer << recordedMasked << QStringList{QStringLiteral("4F2A'JOX'77C1")} << false << Mark::Hidden;
    // "Serial: 4F2A77C1" must go first: "Serial" alone would leave the number behind.
    QString recordedWholeLine = Answer;
    recordedWholeLine.replace(QStringLiteral("Serial: 4F2A77C1"), AutoComparador::Placeholder);
    QTest::newRow("longest mask first")
        << Answer << recordedWholeLine
        << QStringList{QStringLiteral("Serial"), QStringLiteral("Serial: 4F2A77C1")} << false << Mark::Shown;

    // The prompt cut happens only when "] :-) " stands after the first character.
    const QString oneLine = QStringLiteral("abvalue 1\r\n") + Prompt;
    QTest::newRow("prompt after first character: cut")
        << oneLine << QStringLiteral("??value 1") << none << false << Mark::Shown;
    const QString promptFirst = QStringLiteral("] :-) ") + QStringLiteral("0123456789abcdefghijklmnopqrst");
    // At the first character nothing is cut, so the whole text must be found, not its first ten.
    QTest::newRow("prompt at first character: not cut")
        << promptFirst << QStringLiteral("##") + promptFirst.mid(2) << none << false << Mark::Shown;
    QTest::newRow("prompt at first character: only the head recorded")
        << promptFirst << QStringLiteral("##") + promptFirst.mid(2, 8) << none << false << Mark::Hidden;
    QTest::newRow("short text with a prompt is cut to nothing")
        << QStringLiteral("a] :-) ") << QStringLiteral("anything") << none << false << Mark::Hidden;

    // Found at the very first character counts as a mismatch.
    QTest::newRow("found at first character")
        << QStringLiteral("\r\nnand --getinfo") << QStringLiteral("nand --getinfo and more") << none << false
        << Mark::Hidden;
    QTest::newRow("found at second character")
        << QStringLiteral("\r\nnand --getinfo") << QStringLiteral("Xnand --getinfo and more") << none << false
        << Mark::Shown;
    QTest::newRow("empty console") << QString() << Answer << none << false << Mark::Hidden;
}

void TestAutoComparador::evaluate()
{
    QFETCH(QString, console);
    QFETCH(QString, recorded);
    QFETCH(QStringList, masks);
    QFETCH(bool, longAnswer);
    QFETCH(Mark, expected);
    QCOMPARE(AutoComparador::evaluate(console, recorded, masks, longAnswer), expected);
}

void TestAutoComparador::mask_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("masks");
    QTest::addColumn<bool>("removeFillers");
    QTest::addColumn<QString>("expected");

    const QString P = AutoComparador::Placeholder;
    QTest::newRow("every occurrence, any case")
        << QStringLiteral("ECID abc, ecid ABC") << QStringList{QStringLiteral("abc")} << true
        << QStringLiteral("ECID %1, ecid %1").arg(P);
    QTest::newRow("longest first whatever the stored order")
        << QStringLiteral("Serial: 12") << QStringList{QStringLiteral("Serial"), QStringLiteral("Serial: 12")}
        << true << P;
    QTest::newRow("longest first whatever the letter case")
        << QStringLiteral("id ABCD x") << QStringList{QStringLiteral("abc"), QStringLiteral("ABCD")} << true
        << QStringLiteral("id %1 x").arg(P);
    QTest::newRow("fillers removed for the console")
        << QStringLiteral("id 77") << QStringList{QStringLiteral("'jox'77")} << true << QStringLiteral("id ") + P;
    QTest::newRow("fillers kept: stored text masks nothing")
        << QStringLiteral("id 77") << QStringList{QStringLiteral("'jox'77")} << false << QStringLiteral("id 77");
    QTest::newRow("fillers kept: stored text found as it stands")
        << QStringLiteral("id 'jox'77") << QStringList{QStringLiteral("'jox'77")} << false
        << QStringLiteral("id ") + P;
    QTest::newRow("a mask of filler marks only masks nothing")
        << QStringLiteral("a'nas'b") << QStringList{QStringLiteral("'nas'")} << true << QStringLiteral("a'nas'b");
    QTest::newRow("empty mask") << QStringLiteral("abc") << QStringList{QString()} << false << QStringLiteral("abc");
    QTest::newRow("quote in mask and text")
        << QStringLiteral("it's 5") << QStringList{QStringLiteral("it's")} << true << P + QStringLiteral(" 5");
}

void TestAutoComparador::mask()
{
    QFETCH(QString, text);
    QFETCH(QStringList, masks);
    QFETCH(bool, removeFillers);
    QFETCH(QString, expected);
    const auto mode = removeFillers ? AutoComparador::FillerMarks::Remove : AutoComparador::FillerMarks::Keep;
    QCOMPARE(AutoComparador::mask(text, masks, mode), expected);
}

void TestAutoComparador::maskingTwiceChangesNothing()
{
    const QStringList masks{QStringLiteral("4F2A77C1"), QStringLiteral("Serial: "), QStringLiteral("TOSHIBA")};
    for (auto mode : {AutoComparador::FillerMarks::Remove, AutoComparador::FillerMarks::Keep}) {
        const QString once = AutoComparador::mask(Answer, masks, mode);
        QVERIFY(once != Answer);
        QCOMPARE(AutoComparador::mask(once, masks, mode), once);
    }
}

void TestAutoComparador::commandKinds_data()
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

void TestAutoComparador::commandKinds()
{
    QFETCH(QString, command);
    QFETCH(bool, longAnswer);
    QFETCH(bool, buttonTest);
    QCOMPARE(AutoComparador::isLongAnswerCommand(command), longAnswer);
    QCOMPARE(AutoComparador::isButtonTestCommand(command), buttonTest);
}

QTEST_GUILESS_MAIN(TestAutoComparador)
#include "tst_autocomparador.moc"
