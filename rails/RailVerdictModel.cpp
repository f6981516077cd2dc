#include "RailVerdictModel.h"

#include "RailEngine.h"

#include <QSqlQueryModel>
#include <QSqlRecord>

Verdict RailVerdictModel::rowVerdict(const QString &malha, const QString &refv, const QString &leitura,
                                     const QString &porc)
{
    if (leitura.isEmpty() || malha.contains(QLatin1String("VAR"), Qt::CaseInsensitive))
        return Verdict::None;
    RailMeasurement stored;
    stored.malha = malha;
    stored.leitura = leitura;
    stored.porc = porc;
    // The no-reading text of every language ends in "*"; any other stored text is a value.
    stored.measured = !leitura.endsWith(u'*');
    stored.unit = leitura.endsWith(QLatin1String(" V")) ? RailUnit::Volts
                  : leitura.endsWith(QLatin1String(" mA")) ? RailUnit::Milliamps
                                                           : RailUnit::None;
    return RailEngine::verdict(stored, refv, RailEngine::DefaultTolerancePercent);
}

QString RailVerdictModel::text(int row, const char *column) const
{
    const auto *source = qobject_cast<const QSqlQueryModel *>(sourceModel());
    if (!source)
        return {};
    return source->record(row).value(QLatin1String(column)).toString();
}

QVariant RailVerdictModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::BackgroundRole || !index.isValid())
        return QIdentityProxyModel::data(index, role);
    const auto *source = qobject_cast<const QSqlQueryModel *>(sourceModel());
    if (!source)
        return QIdentityProxyModel::data(index, role);
    const QString column = source->record().fieldName(index.column());
    if (column != QLatin1String("Leitura") && column != QLatin1String("Porc"))
        return QIdentityProxyModel::data(index, role);
    const int row = index.row();
    switch (rowVerdict(text(row, "Malha"), text(row, "refv"), text(row, "Leitura"), text(row, "Porc"))) {
    case Verdict::Pass: return PassColour;
    case Verdict::Fail: return FailColour;
    case Verdict::None: break;
    }
    return QIdentityProxyModel::data(index, role);
}
