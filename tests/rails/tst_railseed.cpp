// The demo references must stay those of the simulator's good board: every Master row of the
// seed matches a rail of sim/answers/rails.tsv, and the good board's answers pass them all.
#include "RailEngine.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

struct SeedRow
{
    QString modelo, malha, ci, tipo, orig, reft, refv;
};

QString readText(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(f.readAll());
}

QList<SeedRow> seedRows()
{
    static const QRegularExpression row(QStringLiteral(
        "\\('([^']*)', '([^']*)', '([^']*)', (\\d+), '([^']*)', '([^']*)', '([^']*)', '', '', '', '', ''\\)"));
    QList<SeedRow> rows;
    const QString sql = readText(QStringLiteral(VEKTO_SOURCE_DIR "/data/seed/30_master_demo.sql"));
    for (auto it = row.globalMatch(sql); it.hasNext();) {
        const auto m = it.next();
        rows.append({m.captured(1), m.captured(2), m.captured(3), m.captured(4), m.captured(5), m.captured(6),
                     m.captured(7)});
    }
    return rows;
}

QString simDir(const QString &modelo)
{
    return QString(modelo).toLower().remove(u' ');
}

} // namespace

class TestRailSeed : public QObject
{
    Q_OBJECT

private slots:
    void seedMatchesSimulator()
    {
        const QString tsv = readText(QStringLiteral(VEKTO_SOURCE_DIR "/sim/answers/rails.tsv"));
        if (tsv.isEmpty())
            QSKIP("the simulator's rail list is not in this tree");
        QStringList expected;
        const QStringList lines = tsv.split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines.mid(1)) {
            const QStringList c = line.split(u'\t');
            QVERIFY2(c.size() >= 9, qPrintable(line));
            // model orig label nominal unit net chip class refv
            expected << QStringList{c[0], c[5], c[6], c[7], QStringLiteral("%1").arg(c[1].toInt(), 3, 10, QLatin1Char('0')),
                                    c[2], c[8].trimmed()}
                            .join(u'|');
        }
        QStringList seeded;
        for (const SeedRow &r : seedRows())
            seeded << QStringList{r.modelo, r.malha, r.ci, r.tipo, r.orig, r.reft, r.refv}.join(u'|');
        QCOMPARE(seeded, expected);
    }

    void goodBoardPassesEveryJudgedRail()
    {
        const QList<SeedRow> rows = seedRows();
        QVERIFY(!rows.isEmpty());
        QSet<QString> models;
        for (const SeedRow &r : rows)
            models.insert(r.modelo);
        QCOMPARE(models.size(), 9);
        for (const QString &modelo : models) {
            const QString answer = readText(QStringLiteral(VEKTO_SOURCE_DIR "/sim/answers/") + simDir(modelo)
                                            + QStringLiteral("/pmuadc-all.txt"));
            if (answer.isEmpty())
                QSKIP("the simulator's answers are not in this tree");
            QList<RailReference> refs;
            for (const SeedRow &r : rows)
                if (r.modelo == modelo)
                    refs.append({r.malha, r.reft, r.refv, r.ci});
            const auto readings = RailEngine::ProcessaLeituras(answer, refs, {});
            QCOMPARE(readings.size(), refs.size());
            for (int i = 0; i < refs.size(); ++i) {
                const auto v = RailEngine::verdict(readings[i], refs[i].refv, RailEngine::DefaultTolerancePercent);
                // A rail whose reference is "0" (off in diagnostics mode) is shown, not judged.
                const RailVerdict expected = refs[i].refv == QLatin1String("0") ? RailVerdict::None : RailVerdict::Pass;
                QVERIFY2(v == expected, qPrintable(modelo + u' ' + readings[i].malha + u' '
                                                            + readings[i].leitura + u' ' + readings[i].porc));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestRailSeed)
#include "tst_railseed.moc"
