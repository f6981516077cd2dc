// The NAND rules on console answers: the size line read into a size class (every class edge and
// gap, the digit rule, the length limits), and the status check with its length thresholds.

#include "NandEngine.h"

#include <QtTest>

namespace {

const QString Prompt = QStringLiteral("[0000002a:0000001b] :-) ");

// A "nandsize" answer as the console holds it, whose size text (from just after the ":" to the
// CR LF before the prompt) is exactly `sizeText`.
QString sizeAnswer(const QString &sizeText)
{
    return QStringLiteral("\r\nnandsize\r\r\nnand size check Passed, size in KiB:") + sizeText + QStringLiteral("\r\n")
        + Prompt;
}

// The size text whose value divided by 1,000,000 is `megas` plus `extra`.
QString hexOf(qint64 megas, qint64 extra = 0)
{
    return QString::number(megas * 1000000 + extra, 16).toUpper();
}

// `text` followed by blanks up to `length` characters.
QString padded(const QString &text, int length)
{
    return text + QString(length - text.size(), u' ');
}

} // namespace

class TestNandEngine : public QObject
{
    Q_OBJECT

private slots:
    void sizeClasses_data()
    {
        QTest::addColumn<QString>("sizeText");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("verdict");
        const int pass = int(Verdict::Pass), fail = int(Verdict::Fail);
        QTest::newRow("3B9ACA") << "3B9ACA" << "3 GB APROX." << fail;
        QTest::newRow("simulated IP 7, with its blank and 0x") << " 0x8000000" << "128 GB" << pass;
        QTest::newRow("N 21 between 16 and 32") << hexOf(21) << "21 GB APROX." << fail;
        // Every edge of every class, and the gaps between them.
        const QList<std::tuple<int, QString>> edges = {
            {0, {}},       {6, {}},       {7, "8 GB"},     {12, "8 GB"},     {13, {}},        {14, "16 GB"},
            {20, "16 GB"}, {22, "32 GB"}, {39, "32 GB"},   {40, {}},         {45, {}},        {46, "64 GB"},
            {79, "64 GB"}, {80, {}},      {81, "128 GB"},  {139, "128 GB"},  {140, {}},       {190, {}},
            {191, "256 GB"}, {349, "256 GB"}, {350, {}},   {351, "512 GB"},  {699, "512 GB"}, {700, {}},
            {701, "1024 GB"}, {1299, "1024 GB"}, {1300, {}}, {5000, {}},
        };
        for (const auto &[n, caption] : edges)
            QTest::addRow("N %d", n) << hexOf(n) << (caption.isEmpty() ? QString::number(n) + " GB APROX." : caption)
                                     << (caption.isEmpty() ? fail : pass);
        // N is rounded down: just below a class edge stays outside it.
        QTest::newRow("6.999999 rounds down to 6") << hexOf(6, 999999) << "6 GB APROX." << fail;
        QTest::newRow("12.999999 rounds down to 12") << hexOf(12, 999999) << "8 GB" << pass;
        // Only upper-case digits count; lower-case and other characters weigh 0 in their place.
        QTest::newRow("upper case 1E000000") << "1E000000" << "512 GB" << pass;
        QTest::newRow("lower case 1e000000") << "1e000000" << "256 GB" << pass;
        QTest::newRow("all lower case") << "ffffffff" << "0 GB APROX." << fail;
        QTest::newRow("letters beyond F") << "1G000000" << "256 GB" << pass;
        QTest::newRow("51 characters") << padded({}, 44) + "8000000" << "128 GB" << pass;
        QTest::newRow("digits after the value") << "8000000 KiB" << "8796093 GB APROX." << fail;
    }
    void sizeClasses()
    {
        QFETCH(QString, sizeText);
        QFETCH(QString, caption);
        QFETCH(int, verdict);
        const NandEngine::Size size = NandEngine::size(sizeAnswer(sizeText));
        QCOMPARE(size.outcome, NandEngine::Size::Outcome::Read);
        QCOMPARE(size.sizeText, sizeText);
        QCOMPARE(NandEngine::sizeCaption(size, QStringLiteral("APROX.")), caption);
        QCOMPARE(int(NandEngine::sizeVerdict(size)), verdict);
    }

    void sizeNotRead_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("outcome");
        using O = NandEngine::Size::Outcome;
        QTest::newRow("52 characters") << sizeAnswer(padded({}, 45) + "8000000") << int(O::TooLong);
        QTest::newRow("no colon") << QStringLiteral("\r\nnandsize\r\r\nnand size check Passed 0x8000000\r\n")
                                         + QStringLiteral("[0000002a-0000001b] :-) ")
                                  << int(O::Unreadable);
        QTest::newRow("no bracket") << QStringLiteral("\r\nnandsize\r\r\nnand size check Passed, size in KiB: 0x8000000\r\n")
                                    << int(O::Unreadable);
        QTest::newRow("colon only inside the prompt") << QStringLiteral("\r\nnandsize\r\r\nsize check Passed 0x8000000\r\n")
                                                             + Prompt
                                                      << int(O::Unreadable);
        QTest::newRow("nothing between") << QStringLiteral("\r\nnandsize\r\r\nnand size check Passed, size in KiB:\r\n")
                                                + Prompt
                                         << int(O::Unreadable);
        QTest::newRow("IP 6") << QStringLiteral("\r\nnandsize\r\r\nCommand \"nandsize\" not found\r\n") + Prompt
                              << int(O::NotAvailable);
        QTest::newRow("the empty answer of a silent phone") << QStringLiteral("\r\n") << int(O::TooShort);
    }
    void sizeNotRead()
    {
        QFETCH(QString, answer);
        QFETCH(int, outcome);
        const NandEngine::Size size = NandEngine::size(answer);
        QCOMPARE(int(size.outcome), outcome);
        QCOMPARE(NandEngine::sizeVerdict(size), Verdict::None);
        QVERIFY(NandEngine::sizeCaption(size, QStringLiteral("APROX.")).isEmpty());
    }

    // The shortest answer read as a size holds 41 characters.
    void sizeThreshold_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("read");
        QTest::newRow("40") << 40 << false;
        QTest::newRow("41") << 41 << true;
    }
    void sizeThreshold()
    {
        QFETCH(int, length);
        QFETCH(bool, read);
        const QString tail = QStringLiteral(": 0x8000000\r\n[0000002a:0000001b]");
        const QString answer = QString(length - tail.size(), u'.') + tail;
        QCOMPARE(answer.size(), length);
        const NandEngine::Size size = NandEngine::size(answer);
        QCOMPARE(size.outcome == NandEngine::Size::Outcome::Read, read);
        if (read)
            QCOMPARE(size.classGb, 128);
    }

    void status_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("verdict");
        using O = NandEngine::Status::Outcome;
        const int judged = int(O::Judged), pass = int(Verdict::Pass), fail = int(Verdict::Fail),
                  none = int(Verdict::None);
        const auto answer = [](const QString &command, const QString &line, int length = 0) {
            const QString text = QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n") + line + QStringLiteral("\r\n");
            return padded(text, qMax(length, int(text.size()))) + Prompt;
        };
        QTest::newRow("uid passed") << 0 << answer("nanduid", "NAND UID read Passed\r\nUID: 0B78BF7A") << judged << pass;
        QTest::newRow("Pass without -ed") << 0 << answer("nanduid", "uid read Pass ............") << judged << pass;
        QTest::newRow("upper-case PASSED") << 0 << answer("nanduid", "NAND UID read PASSED ........") << judged << fail;
        QTest::newRow("info by its name line") << 2 << answer("nand --getinfo", "  vendor name: Hynix") << judged << pass;
        QTest::newRow("Name: is not name:") << 2 << answer("nand --getinfo", "  Vendor Name: Hynix ......") << judged
                                            << fail;
        QTest::newRow("failed size") << 1 << answer("nandsize", "nand size check Failed, no response") << judged << fail;
        QTest::newRow("not found") << 0 << answer("nanduid", "Command \"nanduid\" not found") << int(O::NotAvailable)
                                   << none;
        QTest::newRow("not found wins over Passed") << 2 << answer("nand --getinfo", "Passed; firmware not found")
                                                    << int(O::NotAvailable) << none;
        // syscfg list is judged by its length only.
        QTest::newRow("syscfg 7000 with Passed") << 3 << padded("syscfg list Passed", 7000) << judged << fail;
        QTest::newRow("syscfg 7001 without Pass") << 3 << padded("syscfg list", 7001) << judged << pass;
        // Fewer than 61 characters is no answer yet, whatever it says.
        QTest::newRow("60 characters") << 0 << padded("\r\nnanduid\r\r\nNAND UID read Passed", 60) << int(O::TooShort)
                                       << none;
        QTest::newRow("61 characters") << 0 << padded("\r\nnanduid\r\r\nNAND UID read Passed", 61) << judged << pass;
        QTest::newRow("silent phone") << 2 << QStringLiteral("\r\n") << int(O::TooShort) << none;
    }
    void status()
    {
        QFETCH(int, mode);
        QFETCH(QString, answer);
        QFETCH(int, outcome);
        QFETCH(int, verdict);
        const NandEngine::Status status = NandEngine::status(answer, mode);
        QCOMPARE(int(status.outcome), outcome);
        QCOMPARE(int(status.verdict), verdict);
        QCOMPARE(NandEngine::statusKey(status.verdict).isEmpty(), status.verdict == Verdict::None);
    }
};

QTEST_GUILESS_MAIN(TestNandEngine)
#include "tst_nandengine.moc"
