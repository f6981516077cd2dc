// One rail reading: cutting every rail out of the answer (200 rails as a board has them, and
// 20,000 to show how the label search grows), and writing all readings into Master in one
// transaction on a real SQLite file. Every round writes values that differ from the ones in the
// file, as consecutive readings of a real board do: rewriting identical values lets SQLite skip
// the page writes and the syncs, which is not what a technician's reading costs. The syncs that
// reach the disk are counted by wrapping fsync/fdatasync, the calls SQLite makes for them.

#include "BenchTiming.h"
#include "Database.h"
#include "RailEngine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <atomic>
#include <functional>
#include <dlfcn.h>

namespace {

std::atomic<int> syncCalls{0};

template<typename Fn> Fn real(const char *name)
{
    return reinterpret_cast<Fn>(dlsym(RTLD_NEXT, name));
}

} // namespace

// The bench executable exports these (linked with -rdynamic), so SQLite's calls land here first.
extern "C" int fsync(int fd)
{
    ++syncCalls;
    static const auto next = real<int (*)(int)>("fsync");
    return next(fd);
}

extern "C" int fdatasync(int fd)
{
    ++syncCalls;
    static const auto next = real<int (*)(int)>("fdatasync");
    return next(fd);
}

namespace {

struct Reading
{
    QString answer;
    QList<RailReference> refs;
};

// `rails` rails, every fifth a current; `round` changes every value.
Reading makeReading(int rails, int round)
{
    Reading r;
    r.answer = QStringLiteral("\r\npmuadc --read all\r\r\nPMU ADC read all channels\r\r\n");
    for (int i = 0; i < rails; ++i) {
        const bool current = i % 5 == 4;
        const QString label = (current ? QStringLiteral("irail") : QStringLiteral("vrail")) + QString::number(i) + u':';
        r.answer += label
                    + (current ? QStringLiteral(" %1.33 mA\r\r\n").arg(300 + (i + round) % 97)
                               : QStringLiteral(" %1.125 mV\r\r\n").arg(1700 + (i + round) % 199));
        r.refs.append({QStringLiteral("NET_%1").arg(i), label, current ? QStringLiteral("352,4") : QStringLiteral("1.800"),
                       QStringLiteral("PMU")});
    }
    r.answer += QStringLiteral("[0000001A:0000BEEF] :-) ");
    return r;
}

double medianUs(const QList<qint64> &ns)
{
    return medianNs(ns) / 1000.0;
}

template<typename Fn> double timeUs(int rounds, Fn fn)
{
    return medianRunNs(rounds, fn) / 1000.0;
}

// What the label search was: a search from the start of the answer for every row.
QList<RailMeasurement> rowByRow(const Reading &r)
{
    QList<RailMeasurement> out;
    for (const RailReference &ref : r.refs)
        out.append(RailEngine::readRail(r.answer, ref, {}));
    return out;
}

bool createMaster(const QString &path, const QList<RailReference> &refs)
{
    bool ok = false;
    {
        QSqlDatabase c = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bench-setup"));
        c.setDatabaseName(path);
        ok = c.open();
        QSqlQuery q(c);
        ok = ok && q.exec(QStringLiteral("CREATE TABLE Master (Modelo TEXT, Malha TEXT, Ci TEXT, TIPO INTEGER, Orig TEXT,"
                                         " Reft TEXT, refv TEXT, Leitura TEXT, Porc TEXT, G1 TEXT, G2 TEXT, G3 TEXT)"));
        ok = ok && q.exec(QStringLiteral("CREATE INDEX Master_Modelo_Malha ON Master (Modelo, Malha)"));
        c.transaction();
        for (const RailReference &ref : refs) {
            q.prepare(QStringLiteral("INSERT INTO Master (Modelo, Malha, Ci, TIPO, Reft, refv) VALUES ('IP 7', ?, ?, 2, ?, ?)"));
            q.addBindValue(ref.malha);
            q.addBindValue(ref.ci);
            q.addBindValue(ref.reft);
            q.addBindValue(ref.refv);
            ok = q.exec() && ok;
        }
        ok = c.commit() && ok;
        c.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("bench-setup"));
    return ok;
}

QList<RailReading> rowsOf(const QList<RailMeasurement> &readings)
{
    QList<RailReading> rows;
    for (const RailMeasurement &m : readings)
        rows.append({QStringLiteral("IP 7"), m.malha, m.leitura, m.porc});
    return rows;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    bool ok = true;

    // --- parsing: one pass against a search per row, on the same answers -------------------
    for (const int rails : {200, 20000}) {
        const Reading r = makeReading(rails, 0);
        const int rounds = rails > 1000 ? 5 : 200;
        const bool same = [&] {
            const auto a = RailEngine::ProcessaLeituras(r.answer, r.refs, {});
            const auto b = rowByRow(r);
            for (qsizetype i = 0; i < a.size(); ++i)
                if (a[i].leitura != b[i].leitura || a[i].porc != b[i].porc)
                    return false;
            return a.size() == b.size();
        }();
        ok = ok && same;
        const double onePass = timeUs(rounds, [&] { RailEngine::ProcessaLeituras(r.answer, r.refs, {}); });
        const double perRow = timeUs(rounds, [&] { rowByRow(r); });
        out << "parse " << rails << " rails: one pass " << onePass << " us, a search per row " << perRow
            << " us, ratio " << perRow / onePass << (same ? "" : "  (READINGS DIFFER)") << '\n';
    }

    // --- writing: 50 readings of 200 rails, each with new values -----------------------------
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Config.vkt"));
    const Reading first = makeReading(200, 0);
    ok = createMaster(path, first.refs) && ok;
    constexpr int Writes = 50;
    QList<QList<RailReading>> changing;
    for (int round = 1; round <= Writes; ++round)
        changing.append(rowsOf(RailEngine::ProcessaLeituras(makeReading(200, round).answer, first.refs, {})));
    const QList<RailReading> identical = changing.last();

    auto writeAll = [&](const std::function<const QList<RailReading> &(int)> &rowsFor, int *syncs) {
        QList<qint64> ns;
        const int before = syncCalls.load();
        for (int round = 0; round < Writes; ++round) {
            Database db(path);
            QElapsedTimer t;
            t.start();
            ok = db.writeReadings(rowsFor(round)) && ok;
            ns << t.nsecsElapsed();
        }
        *syncs = syncCalls.load() - before;
        return medianUs(ns);
    };
    int changedSyncs = 0, identicalSyncs = 0;
    const double changed = writeAll([&](int round) -> const QList<RailReading> & { return changing.at(round); },
                                    &changedSyncs);
    const double same = writeAll([&](int) -> const QList<RailReading> & { return identical; }, &identicalSyncs);
    out << "write 200 changed readings, one transaction: median " << changed << " us, "
        << double(changedSyncs) / Writes << " syncs per write\n"
        << "write 200 identical readings, one transaction: median " << same << " us, "
        << double(identicalSyncs) / Writes << " syncs per write\n";
    if (!ok)
        out << "A WRITE FAILED or readings differ\n";
    return ok ? 0 : 1;
}
