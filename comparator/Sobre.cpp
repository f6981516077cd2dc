#include "Sobre.h"

#include "LinkMenu.h"
#include "Session.h"
#include "Shell.h"
#include "StartupSteps.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QVBoxLayout>

Sobre::Sobre(const ScreenContext &ctx, Shell &shell, std::function<QString()> chooseFile, QWidget *parent)
    : TestScreen(ctx, QStringLiteral("Sobre"), parent), m_shell(shell), m_chooseFile(std::move(chooseFile)),
      m_menuBar(new QMenuBar(this)), m_menuDados(new QMenu(this)), m_links(new LinkMenu(ctx.session, shell, this)),
      m_produto(new QLabel(this)), m_versao(new QLabel(this)), m_suporte(new QLabel(this)), m_autorais(new QLabel(this))
{
    m_menuDados->setObjectName(QStringLiteral("mnuDados"));
    m_sync = m_menuDados->addAction(QString());
    m_sync->setObjectName(QStringLiteral("mnuSincronizar"));
    connect(m_sync, &QAction::triggered, this, &Sobre::sincronizar);
    m_menuBar->addMenu(m_menuDados);
    m_menuBar->addMenu(m_links);

    m_produto->setObjectName(QStringLiteral("lbProduto"));
    QFont big = m_produto->font();
    big.setPointSize(big.pointSize() + 8);
    big.setBold(true);
    m_produto->setFont(big);
    m_produto->setText(QStringLiteral("Pelorin Vekto"));
    m_versao->setObjectName(QStringLiteral("lbVersao"));
    m_suporte->setObjectName(QStringLiteral("lbSuporte"));
    m_suporte->setTextFormat(Qt::RichText);
    m_suporte->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    // Links go through the shell, which the tests record, and only for the https pages offered.
    connect(m_suporte, &QLabel::linkActivated, this, [this](const QString &link) { m_shell.open(link); });
    m_autorais->setObjectName(QStringLiteral("lbAutorais"));

    auto *layout = new QVBoxLayout(this);
    layout->setMenuBar(m_menuBar);
    for (QLabel *label : {m_produto, m_versao, m_suporte, m_autorais}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addStretch();
    retranslate();
}

void Sobre::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Sobre")));
    m_menuDados->setTitle(Traduz(QStringLiteral("Dados")));
    m_sync->setText(Traduz(QStringLiteral("Sincronizar Dados Salvos")));
    m_links->reload();
    m_versao->setText(Traduz(QStringLiteral("Versão")) + u' ' + session().versao());
    QStringList links;
    for (const QAction *action : m_links->actions()) {
        if (action->objectName() == QLatin1String("linkUrlDownload") || !action->isEnabled())
            continue;
        const QString address = action->data().toString().toHtmlEscaped();
        links << QStringLiteral("%1: <a href=\"%2\">%2</a>").arg(action->text().toHtmlEscaped(), address);
    }
    m_suporte->setText(links.join(QLatin1String("<br>")));
    m_autorais->setText(Traduz(QStringLiteral("Autorais")));
}

QString Sobre::chooseUserFile()
{
    if (m_chooseFile)
        return m_chooseFile();
    return QFileDialog::getOpenFileName(this, Traduz(QStringLiteral("IMPORT_ESCOLHER")), QString(),
                                        QStringLiteral("User.vkt (*.vkt *.mdb);;* (*)"));
}

void Sobre::sincronizar()
{
    QString path = StartupSteps::userFilePath(session().configPath());
    if (!QFileInfo(path).isFile())
        path = chooseUserFile();
    if (path.isEmpty())
        return;
    StartupSteps::importa(session(), dialogs(), this, path);
}
