#pragma once
// The columns a bound grid shows, each with the dictionary key of its caption; every other
// column of the query stays hidden.

#include <QList>
#include <QPair>
#include <QSqlRecord>
#include <QString>
#include <QTableView>

#include <algorithm>

using GridColumns = QList<QPair<QString, QString>>;

inline void showOnlyGridColumns(QTableView *view, const QSqlRecord &record, const GridColumns &columns)
{
    for (int i = 0; i < record.count(); ++i) {
        const bool shown = std::any_of(columns.begin(), columns.end(),
                                       [&](const auto &c) { return c.first == record.fieldName(i); });
        view->setColumnHidden(i, !shown);
    }
}
