#include "Termos.h"

#include "Session.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

Termos::Termos(const Session &session, QWidget *parent)
    : QDialog(parent), m_texto(new QPlainTextEdit(this)), m_yes(new QPushButton(this)), m_no(new QPushButton(this))
{
    setObjectName(QStringLiteral("Termos"));
    setWindowTitle(QStringLiteral("Pelorin Vekto - ") + session.Traduz(QStringLiteral("TERMOS_TITULO")));
    m_texto->setObjectName(QStringLiteral("txtTermos"));
    m_texto->setReadOnly(true);
    m_texto->setPlainText(session.Traduz(QStringLiteral("TERMOS_TEXTO")));
    m_yes->setObjectName(QStringLiteral("btTermosYes"));
    m_yes->setText(session.Traduz(QStringLiteral("TermosYes")));
    m_no->setObjectName(QStringLiteral("btTermosNo"));
    m_no->setText(session.Traduz(QStringLiteral("TermosNo")));
    // Agreeing must be a deliberate click: Enter alone does not agree.
    m_yes->setAutoDefault(false);
    m_no->setDefault(true);
    connect(m_yes, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_no, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_yes);
    buttons->addWidget(m_no);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_texto);
    layout->addLayout(buttons);
    resize(560, 380);
}
