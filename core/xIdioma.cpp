#include "xIdioma.h"
#include "ui_xIdioma.h"

#include "Database.h"
#include "Dialogs.h"
#include "Session.h"

#include <QPushButton>

xIdioma::xIdioma(Session &session, Dialogs &dialogs, std::function<void()> closeTestScreens, QWidget *parent)
    : QWidget(parent), ui(new Ui::xIdioma), m_session(session), m_dialogs(dialogs),
      m_closeTestScreens(std::move(closeTestScreens))
{
    ui->setupUi(this);
    connect(ui->btIdioma_1, &QPushButton::clicked, this, [this] { btIdioma_Click(1); });
    connect(ui->btIdioma_2, &QPushButton::clicked, this, [this] { btIdioma_Click(2); });
    connect(ui->btIdioma_3, &QPushButton::clicked, this, [this] { btIdioma_Click(3); });
    Form_Load();
}

xIdioma::~xIdioma()
{
    delete ui;
}

void xIdioma::Form_Load()
{
    setWindowTitle(m_session.Traduz(QStringLiteral("Idioma")));
    ui->Frame1->setTitle(m_session.Traduz(QStringLiteral("Idiomas disponíveis")) + u':');
    ui->lbIdioma->setText(m_session.Traduz(QStringLiteral("Idioma")));
    ui->btIdioma_1->setText(m_session.Traduz(QStringLiteral("PORTUGUÊS")));
    ui->btIdioma_2->setText(m_session.Traduz(QStringLiteral("INGLÊS")));
    ui->btIdioma_3->setText(m_session.Traduz(QStringLiteral("ESPANHOL")));
}

void xIdioma::btIdioma_Click(quint8 index)
{
    if (m_closeTestScreens)
        m_closeTestScreens();
    m_session.setIdioma(index);
    Form_Load();
    Database db(m_session.configPath());
    if (!db.setIdioma(index))
        m_dialogs.critical(this, m_session.Traduz(QStringLiteral("Idioma")),
                           m_session.Traduz(QStringLiteral("DB_ERRO_GRAVACAO")) + QStringLiteral("\n") + db.lastError());
}
