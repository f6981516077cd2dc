// Connecting to each of the nine simulated phones through the main window, as a technician does:
// the simulator's port is offered in the port list, the connect button brings the light to green
// and the model list to the phone's model, a screen's command gets its answer, and disconnecting
// brings everything back. Real pseudo-terminal, real timers, a copy of Config.vkt.

#include "DesktopProgram.h"
#include "SimProcess.h"

#include <QtTest>

namespace {

// Generous: a connect takes three 500 ms slices and a validation tick; CI machines are slow.
constexpr int Patience = 20000;

} // namespace

class TestConnectSim : public QObject
{
    Q_OBJECT

private slots:
    void connectRecogniseExchangeDisconnect_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("modelNumber");
        QTest::newRow("IP 6") << "IP 6" << "A1549";
        QTest::newRow("IP 6 Plus") << "IP 6 Plus" << "A1522";
        QTest::newRow("IP 6s") << "IP 6s" << "A1633";
        QTest::newRow("IP 6s Plus") << "IP 6s Plus" << "A1634";
        QTest::newRow("IP 7") << "IP 7" << "A1660";
        QTest::newRow("IP 7 Plus") << "IP 7 Plus" << "A1661";
        QTest::newRow("IP 8") << "IP 8" << "A1863";
        QTest::newRow("IP 8 Plus") << "IP 8 Plus" << "A1864";
        QTest::newRow("IP X") << "IP X" << "A1865";
    }

    void connectRecogniseExchangeDisconnect()
    {
        QFETCH(QString, model);
        QFETCH(QString, modelNumber);
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
        ConfigCopy config;
        QVERIFY(config.ok());
        SimProcess phone;
        const QString started = phone.start(model, QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        DesktopProgram p(config.path());
        QVERIFY2(p.selectPort(phone.port()), qPrintable(phone.port() + QStringLiteral(" not offered")));
        p.preselectOtherModel(model);
        QCOMPARE(p.flag(), QStringLiteral("0"));
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));

        p.connectButton()->click();
        QCOMPARE(p.inicial->status(), QStringLiteral("Amarelo"));
        QTRY_COMPARE_WITH_TIMEOUT(p.inicial->status(), QStringLiteral("Verde"), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(p.modelCombo()->currentText(), model, Patience);
        QCOMPARE(p.session.modelo(), model);
        QCOMPARE(p.modelNumberLabel()->text(), modelNumber);
        QCOMPARE(p.flag(), QStringLiteral("1"));
        QCOMPARE(p.connectButton()->text(), p.session.Traduz(QStringLiteral("Desconectar")));
        QVERIFY2(p.dialogs.shown.isEmpty(), qPrintable(p.dialogs.shown.join(u'\n')));

        // A screen's exchange: its answer reaches the receiver registered under its identifier.
        p.send(QStringLiteral("syscfg print RMd#"));
        QCOMPARE(p.flag(), QStringLiteral("3"));
        QTRY_COMPARE_WITH_TIMEOUT(p.answers.size(), 1, Patience);
        QCOMPARE(p.flag(), QStringLiteral("1"));
        QCOMPARE(p.session.screenId(), QStringLiteral("0"));
        QVERIFY2(p.answers.first().startsWith(QStringLiteral("\r\nsyscfg print RMd#\r\r\n") + modelNumber + "\r\n["),
                 qPrintable(p.answers.first()));
        // The phone counts the commands it received: the connect's question and this one.
        QVERIFY2(p.answers.first().endsWith(QStringLiteral(":00000002] :-) ")), qPrintable(p.answers.first()));
        QVERIFY(p.console()->toPlainText().contains(modelNumber));

        p.connectButton()->click();
        QCOMPARE(p.flag(), QStringLiteral("0"));
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
        QVERIFY(!p.port.isOpen());
        QVERIFY(p.modelNumberLabel()->text().isEmpty());
        QCOMPARE(p.connectButton()->text(), p.session.Traduz(QStringLiteral("Conectar")));
        QVERIFY(p.dialogs.shown.isEmpty());
    }
};

QTEST_MAIN(TestConnectSim)
#include "tst_connect_sim.moc"
