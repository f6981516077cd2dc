#pragma once
// The small menu of the maker's pages: the download page and the two remote-support pages. The
// addresses are data (table Tools), so a release can point elsewhere without a new build; an
// address that is empty or not https shows as a disabled entry rather than opening anything.

#include <QMenu>

class Session;
class Shell;

class LinkMenu : public QMenu
{
    Q_OBJECT
public:
    LinkMenu(Session &session, Shell &shell, QWidget *parent = nullptr);

    // Re-reads the addresses and re-captions the entries in the session language.
    void reload();

    // The Tools column of each entry, in menu order, with its caption key.
    static const QList<QPair<QString, QString>> &entries();

private:
    Session &m_session;
    Shell &m_shell;
};
