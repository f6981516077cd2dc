// One rail reading of 200 rails: the time to cut every rail out of the answer, and the time to
// write all of them into Master in one transaction on a real SQLite file.
#include "Database.h"
#include "RailEngine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    constexpr int Rails = 200;
    constexpr int Rounds = 200;

    QString answer = QStringLiteral("\r\npmuadc --read all\r\r\nPMU ADC read all channels\r\r\n");
    QList<RailReference> refs;
    for (int i = 0; i < Rails; ++i) {
        const bool current = i % 5 == 4;
        const QString label = (current ? QStringLiteral("irail") : QStringLiteral("vrail")) + QString::number(i) + u':';
        answer += label + (current ? QStringLiteral(" 352.33 mA\r\r\n") : QStringLiteral(" 1803.125 mV\r\r\n"));
        refs.append({QStringLiteral("NET_%1").arg(i), label, current ? QStringLiteral("352,4") : QStringLiteral("1.800"),
                     QStringLiteral("PMU")});
    }
    answer += QStringLiteral("[0000001A:0000BEEF] :-) ");

    QList<qint64> parse;
    QList<RailMeasurement> readings;
    for (int r = 0; r < Rounds; ++r) {
        QElapsedTimer t;
        t.start();
        readings = RailEngine::ProcessaLeituras(answer, refs, {});
        parse << t.nsecsElapsed();
    }

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Config.vkt"));
    {
        // A file with the one table this benchmark writes.
        QSqlDatabase c = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bench-setup"));
        c.setDatabaseName(path);
        c.open();
        QSqlQuery q(c);
        q.exec(QStringLiteral("CREATE TABLE Master (Modelo TEXT, Malha TEXT, Ci TEXT, TIPO INTEGER, Orig TEXT, Reft TEXT,"
                              " refv TEXT, Leitura TEXT, Porc TEXT, G1 TEXT, G2 TEXT, G3 TEXT)"));
        q.exec(QStringLiteral("CREATE INDEX Master_Modelo_Malha ON Master (Modelo, Malha)"));
        c.transaction();
        for (const RailReference &ref : refs) {
            q.prepare(QStringLiteral("INSERT INTO Master (Modelo, Malha, Ci, TIPO, Reft, refv) VALUES ('IP 7', ?, ?, 2, ?, ?)"));
            q.addBindValue(ref.malha);
            q.addBindValue(ref.ci);
            q.addBindValue(ref.reft);
            q.addBindValue(ref.refv);
            q.exec();
        }
        c.commit();
        c.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("bench-setup"));

    QList<RailReading> rows;
    for (const RailMeasurement &m : readings)
        rows.append({QStringLiteral("IP 7"), m.malha, m.leitura, m.porc});
    QList<qint64> write;
    bool ok = true;
    for (int r = 0; r < 50; ++r) {
        Database db(path);
        QElapsedTimer t;
        t.start();
        ok = db.writeReadings(rows) && ok;
        write << t.nsecsElapsed();
    }

    auto median = [](QList<qint64> v) {
        std::sort(v.begin(), v.end());
        return v.at(v.size() / 2) / 1000.0;
    };
    QTextStream out(stdout);
    out << "rails per reading:            " << Rails << '\n'
        << "parse, median of " << Rounds << " (us):  " << median(parse) << '\n'
        << "write one transaction, median of 50 (us): " << median(write) << (ok ? "" : "  (WRITE FAILED)") << '\n';
    return ok ? 0 : 1;
}
