#pragma once
// The rail grid as the technician reads it: the Leitura and Classificação cells of each row take
// the colour of the rail's verdict, so a rail far off its reference stands out among the others.
// The verdict is RailEngine::verdict on the row's stored texts with the tolerance the command
// line judges by; the texts themselves and the grid's order stay those of the bound query.

#include "Verdict.h"

#include <QColor>
#include <QIdentityProxyModel>

class RailVerdictModel : public QIdentityProxyModel
{
    Q_OBJECT
public:
    // Shared with the buck self test's list, so green and yellow mean the same on every screen.
    static inline const QColor PassColour{0xC0, 0xFF, 0xC0};
    static inline const QColor FailColour{0xFF, 0xFF, 0x80};

    using QIdentityProxyModel::QIdentityProxyModel;

    // The verdict of one stored row. Rows that were not read, and the VAR rails whose values
    // vary all the time, are not judged.
    static Verdict rowVerdict(const QString &malha, const QString &refv, const QString &leitura, const QString &porc);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QString text(int row, const char *column) const;
};
