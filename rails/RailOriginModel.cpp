#include "RailOriginModel.h"

#include <QFont>

void RailOriginModel::setOrigins(int malhaColumn, int refvColumn, const QHash<QString, RowOrigin> &byMalha)
{
    m_malhaColumn = malhaColumn;
    m_refvColumn = refvColumn;
    m_byMalha.clear();
    for (auto it = byMalha.begin(); it != byMalha.end(); ++it)
        m_byMalha.insert(it.key().toUpper(), it.value());
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::ToolTipRole, Qt::FontRole});
}

bool RailOriginModel::anyDemo() const
{
    for (int row = 0; row < rowCount(); ++row)
        if (const auto origin = originOf(row); origin && origin->demo)
            return true;
    return false;
}

std::optional<RailOriginModel::RowOrigin> RailOriginModel::originOf(int row) const
{
    if (!sourceModel() || m_malhaColumn < 0)
        return std::nullopt;
    const QString malha = sourceModel()->index(row, m_malhaColumn).data().toString().toUpper();
    const auto it = m_byMalha.constFind(malha);
    if (it == m_byMalha.constEnd())
        return std::nullopt;
    return *it;
}

QVariant RailOriginModel::data(const QModelIndex &index, int role) const
{
    if (index.isValid() && role == Qt::ToolTipRole) {
        if (const auto origin = originOf(index.row()))
            return origin->text;
    }
    if (index.isValid() && role == Qt::FontRole && index.column() == m_refvColumn) {
        if (const auto origin = originOf(index.row()); origin && origin->demo) {
            QFont italic = QIdentityProxyModel::data(index, role).value<QFont>();
            italic.setItalic(true);
            return italic;
        }
    }
    return QIdentityProxyModel::data(index, role);
}
