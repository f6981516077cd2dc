#include "LinkMenu.h"

#include "Database.h"
#include "Session.h"
#include "Shell.h"
#include "UpdateCheck.h"

LinkMenu::LinkMenu(Session &session, Shell &shell, QWidget *parent)
    : QMenu(parent), m_session(session), m_shell(shell)
{
    setObjectName(QStringLiteral("mnuLinks"));
    reload();
}

const QList<QPair<QString, QString>> &LinkMenu::entries()
{
    static const QList<QPair<QString, QString>> list = {
        {QStringLiteral("UrlDownload"), QStringLiteral("Página de download")},
        {QStringLiteral("UrlSuporte"), QStringLiteral("Suporte Remoto")},
        {QStringLiteral("UrlSuporte2"), QStringLiteral("Suporte")},
    };
    return list;
}

void LinkMenu::reload()
{
    clear();
    setTitle(m_session.Traduz(QStringLiteral("Links")));
    Database db(m_session.configPath());
    for (const auto &[column, key] : entries()) {
        const QString address = db.toolsText(column).value_or(QString()).trimmed();
        QAction *action = addAction(m_session.Traduz(key));
        action->setObjectName(QStringLiteral("link") + column);
        action->setData(address);
        if (!UpdateCheck::isSafeDownloadPage(address)) {
            action->setEnabled(false);
            action->setToolTip(address.isEmpty() ? m_session.Traduz(QStringLiteral("LINK_VAZIO"))
                                                 : m_session.Traduz(QStringLiteral("LINK_RECUSADO")) + u' ' + address);
            continue;
        }
        action->setToolTip(address);
        connect(action, &QAction::triggered, this, [this, address] { m_shell.open(address); });
    }
    setToolTipsVisible(true);
}
