#pragma once
// One record of a query shown in a few widgets, the way the screens look at a recorded answer
// or a command's notes. The query model holds what was read; the mapper puts it into the boxes,
// where the technician edits it; saving reads the boxes back, so what is edited is what is
// saved. Every change of model, command or record re-queries, and a query that finds nothing
// empties the boxes instead of leaving the previous record's text behind.

#include <QDataWidgetMapper>
#include <QList>
#include <QObject>
#include <QSqlQuery>
#include <QSqlQueryModel>
#include <QVariant>

class BoundRecordView : public QObject
{
    Q_OBJECT
public:
    explicit BoundRecordView(QObject *parent = nullptr);

    // Shows `column` of the query's first row in `widget`, through `property` (the widget's
    // user property when empty).
    void bind(QWidget *widget, const QString &column, const QByteArray &property = {});

    // Shows the first row of an executed query; no row, or an inactive query, empties the boxes.
    void requery(QSqlQuery &&query);
    // Nothing to show: the placeholder state of a view before a model and command are known.
    void clear();

    bool hasRecord() const { return m_model.rowCount() > 0; }
    // A column of the record as read (not as edited); invalid without a record.
    QVariant value(const QString &column) const;

    QSqlQueryModel &model() { return m_model; }

signals:
    void requeried();

private:
    struct Binding
    {
        QWidget *widget;
        QString column;
        QByteArray property;
    };
    void applyMappings();
    void emptyWidgets();

    QSqlQueryModel m_model;
    QDataWidgetMapper m_mapper;
    QList<Binding> m_bindings;
};
