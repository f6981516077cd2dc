#include "RailTable.h"

#include <optional>

QList<RailRow> RailTable::parse(const QByteArray &tsv)
{
    QList<RailRow> rows;
    const QList<QByteArray> lines = tsv.split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {  // line 0 names the columns
        const QStringList f = QString::fromUtf8(lines[i]).split(QLatin1Char('\t'));
        if (f.size() < 9)
            continue;
        RailRow r;
        r.model = f[0];
        r.orig = f[1].toInt();
        r.label = f[2];
        r.nominal = f[3].toDouble();
        r.unit = f[4];
        r.net = f[5];
        r.chip = f[6];
        r.railClass = f[7].toInt();
        r.refv = f[8];
        rows << r;
    }
    return rows;
}

QList<RailRow> RailTable::forModel(const QList<RailRow> &rows, const QString &model)
{
    QList<RailRow> out;
    for (const RailRow &r : rows)
        if (r.model == model)
            out << r;
    return out;
}

std::optional<double> RailTable::valueAfter(const QByteArray &answer, const QString &label)
{
    const QByteArray l = label.toUtf8();
    const qsizetype p = answer.indexOf(l);
    if (p < 0)
        return std::nullopt;
    const qsizetype s = p + l.size() + 1;
    const qsizetype e = answer.indexOf(' ', s);
    if (e < 0)
        return std::nullopt;
    bool ok = false;
    const double v = answer.mid(s, e - s).toDouble(&ok);
    return ok ? std::optional<double>(v) : std::nullopt;
}
