#include "BoundRecordView.h"

#include <QMetaProperty>
#include <QSqlRecord>
#include <QWidget>

BoundRecordView::BoundRecordView(QObject *parent) : QObject(parent)
{
    m_mapper.setModel(&m_model);
    // The model is read-only: edits stay in the boxes until the screen saves them itself.
    m_mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
}

void BoundRecordView::bind(QWidget *widget, const QString &column, const QByteArray &property)
{
    QByteArray name = property;
    if (name.isEmpty())
        name = widget->metaObject()->userProperty().name();
    m_bindings.append({widget, column, name});
}

void BoundRecordView::applyMappings()
{
    m_mapper.clearMapping();
    const QSqlRecord record = m_model.record();
    for (const Binding &b : std::as_const(m_bindings)) {
        const int section = record.indexOf(b.column);
        if (section >= 0)
            m_mapper.addMapping(b.widget, section, b.property);
    }
}

void BoundRecordView::requery(QSqlQuery &&query)
{
    if (query.isActive()) {
        m_model.setQuery(std::move(query));
        while (m_model.canFetchMore())
            m_model.fetchMore();
    } else {
        m_model.clear();
    }
    applyMappings();
    if (hasRecord())
        m_mapper.toFirst();
    else
        emptyWidgets();
    emit requeried();
}

void BoundRecordView::clear()
{
    m_model.clear();
    m_mapper.clearMapping();
    emptyWidgets();
    emit requeried();
}

QVariant BoundRecordView::value(const QString &column) const
{
    if (!hasRecord())
        return {};
    return m_model.record(0).value(column);
}

void BoundRecordView::emptyWidgets()
{
    for (const Binding &b : std::as_const(m_bindings))
        b.widget->setProperty(b.property.constData(), QString());
}
