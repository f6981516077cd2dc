// A VCore reading end to end: the simulated phone on a pseudo-terminal, the real serial link
// and exchange with their timers, the screen and Config.vkt. A good board passes every rail;
// the low-rail board shows its core rail clearly off.
#include "ConsoleExchange.h"
#include "Database.h"
#include "FakeDialogs.h"
#include "QtSerialPort.h"
#include "RailEngine.h"
#include "Session.h"
#include "SimProcess.h"
#include "VCores.h"

#include <QtTest>

class TestRailsSim : public QObject
{
    Q_OBJECT

private slots:
    void reading_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QStringList>("offRails");
        QTest::newRow("IP 7 good") << "IP 7" << "good" << QStringList{};
        QTest::newRow("IP X good") << "IP X" << "good" << QStringList{};
        QTest::newRow("IP 7 low rail") << "IP 7" << "low-rail" << QStringList{"PP_CPU"};
    }

    void reading()
    {
        QFETCH(QString, model);
        QFETCH(QString, profile);
        QFETCH(QStringList, offRails);
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
        ConfigCopy config;
        QVERIFY(config.ok());
        const QString path = config.path();
        SimProcess phone;
        const QString started = phone.start(model, profile);
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const QString pty = phone.port();

        Session session(path);
        session.setModelo(model);
        QtSerialPortLink port;
        QCOMPARE(port.open(pty), int(SerialPort::NoError));
        ConsoleExchange exchange(session, port);
        FakeDialogs dialogs;
        session.setConnectionFlag(QStringLiteral("1"));
        session.setConnectionValidated(true); // the port was opened by hand: the phone is known
        {
            VCores screen({session, exchange, dialogs});
            screen.ExecutaLeitura();
            QVERIFY(screen.readingUnderWay());
            QTRY_VERIFY_WITH_TIMEOUT(!screen.readingUnderWay(), 40000);
            QVERIFY2(dialogs.shown.isEmpty(), qPrintable(dialogs.shown.join(u'\n')));
        }
        port.close();
        phone.stop();

        MasterFilter filter;
        filter.modelo = model;
        filter.tipo = VCores::Tipo;
        filter.withReftOnly = true;
        Database db(path);
        const QList<MasterRow> rows = db.masterRows(filter);
        QVERIFY(rows.size() >= 8);
        for (const MasterRow &row : rows) {
            QVERIFY2(!row.leitura.isEmpty(), qPrintable(row.malha));
            // Judged as a grid judges what it reads back: the shown reading against its reference.
            RailMeasurement m;
            m.leitura = row.leitura;
            m.porc = row.porc;
            const RailVerdict v = RailEngine::verdict(m, row.refv, RailEngine::DefaultTolerancePercent);
            const QString what = row.malha + u' ' + row.leitura + u' ' + row.porc;
            if (offRails.contains(row.malha)) {
                QVERIFY2(v == RailVerdict::Fail, qPrintable(what));
                QVERIFY2(porcentagemValorAbs(row.porc) > 10, qPrintable(what));
            } else {
                // A rail whose reference is "0" is shown, not judged.
                QVERIFY2(v == (row.refv == QLatin1String("0") ? RailVerdict::None : RailVerdict::Pass), qPrintable(what));
            }
        }
    }

private:
    static double porcentagemValorAbs(QString porc)
    {
        porc.remove(QStringLiteral(" %")).replace(u',', u'.');
        return qAbs(porc.toDouble());
    }
};

QTEST_MAIN(TestRailsSim)
#include "tst_rails_sim.moc"
