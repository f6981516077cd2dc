// The additional tests' rules on console answers: which tests are judged, the length an answer
// needs, and the DRAM verdict ("Pass" anywhere, case-sensitive).

#include "OutrosEngine.h"

#include <QtTest>

class TestOutrosEngine : public QObject
{
    Q_OBJECT

private slots:
    void status_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("complete");
        QTest::addColumn<int>("verdict");
        const int pass = int(Verdict::Pass), fail = int(Verdict::Fail), none = int(Verdict::None);
        const QString head = QStringLiteral("\r\ntestmemory\r\r\n");
        const QString prompt = QStringLiteral("\r\n[0000002a:0000001b] :-) ");
        QTest::newRow("Passed") << 5 << head + "testmemory: Passed" + prompt << true << pass;
        QTest::newRow("Pass inside another word") << 6 << head + "block 3 ByPass mode" + prompt << true << pass;
        QTest::newRow("neither") << 5 << head + "memory test walking-1    FAILED" + prompt << true << fail;
        QTest::newRow("lower-case passed") << 6 << head + "memory test: passed" + prompt << true << fail;
        QTest::newRow("Tristar is shown, not judged") << 1 << head + "tristar id: TRISTAR rev B1 Passed" + prompt << true
                                                      << none;
        QTest::newRow("Tristar read") << 2 << head + "tristar dx1: 0x12 (USB data +)" + prompt << true << none;
        // More than 30 characters make an answer, whatever it says.
        QTest::newRow("30 characters") << 5 << QStringLiteral("Pass").leftJustified(30, u'.') << false << none;
        QTest::newRow("31 characters") << 5 << QStringLiteral("Pass").leftJustified(31, u'.') << true << pass;
        QTest::newRow("31 characters of Tristar") << 2 << QString(31, u'.') << true << none;
        QTest::newRow("placeholder of the long test") << 6 << QStringLiteral("TESTE 15s") << false << none;
        QTest::newRow("silent phone") << 5 << QStringLiteral("\r\n") << false << none;
    }
    void status()
    {
        QFETCH(int, mode);
        QFETCH(QString, answer);
        QFETCH(bool, complete);
        QFETCH(int, verdict);
        const OutrosEngine::Status status = OutrosEngine::status(answer, mode);
        QCOMPARE(status.complete, complete);
        QCOMPARE(int(status.verdict), verdict);
    }
};

QTEST_GUILESS_MAIN(TestOutrosEngine)
#include "tst_outrosengine.moc"
