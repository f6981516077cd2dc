#pragma once
// The rail grid's second layer: every cell of a row tells, on hover, where the row's reference
// came from, and the reference cell of a shipped demo row is set in italics so nobody takes an
// illustrative value for a measured one. The screen hands in the texts per net; the model only
// places them.

#include <QHash>
#include <QIdentityProxyModel>
#include <optional>

class RailOriginModel : public QIdentityProxyModel
{
    Q_OBJECT
public:
    struct RowOrigin
    {
        QString text; // hover text in the session language
        bool demo = false;
    };

    using QIdentityProxyModel::QIdentityProxyModel;

    // The columns of the source that hold the net name and the reference, and the origins by
    // net name (any letter case).
    void setOrigins(int malhaColumn, int refvColumn, const QHash<QString, RowOrigin> &byMalha);
    bool anyDemo() const;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    std::optional<RowOrigin> originOf(int row) const;

    int m_malhaColumn = -1;
    int m_refvColumn = -1;
    QHash<QString, RowOrigin> m_byMalha;
};
