#pragma once
// Every box the user answers or dismisses goes through this interface. Screens and the main
// window show messages and ask Yes/No questions only here, so tests swap in a scripted fake
// instead of blocking on a modal box, and engines never show anything themselves.

#include <QString>
#include <optional>

class QWidget;

class Dialogs
{
public:
    virtual ~Dialogs() = default;
    // The message box of a "MSG_..." key in the given language (nothing for an unknown key).
    virtual void Mensagem(QWidget *parent, const QString &key, quint8 idioma, const QString &porta = {}) = 0;
    // A plain information box with an already translated title and text.
    virtual void information(QWidget *parent, const QString &title, const QString &text) = 0;
    // A critical box (failures such as an unwritable database).
    virtual void critical(QWidget *parent, const QString &title, const QString &text) = 0;
    // A Yes/No question; "No" (and closing the box) answers false.
    virtual bool question(QWidget *parent, const QString &title, const QString &text) = 0;
    // An input box; nothing when cancelled.
    virtual std::optional<QString> input(QWidget *parent, const QString &title, const QString &prompt,
                                         const QString &initial = {}) = 0;
    // A file name to save to, starting at `suggested`; nothing when cancelled.
    virtual std::optional<QString> saveFileName(QWidget *parent, const QString &title, const QString &suggested) = 0;
};

class Session;

// The real boxes, QMessageBox and QInputDialog, with Yes/No in the session language once a
// session exists (before that, at start-up, Qt's own buttons).
class QtDialogs : public Dialogs
{
public:
    void setSession(const Session *session) { m_session = session; }
    void Mensagem(QWidget *parent, const QString &key, quint8 idioma, const QString &porta = {}) override;
    void information(QWidget *parent, const QString &title, const QString &text) override;
    void critical(QWidget *parent, const QString &title, const QString &text) override;
    bool question(QWidget *parent, const QString &title, const QString &text) override;
    std::optional<QString> input(QWidget *parent, const QString &title, const QString &prompt,
                                 const QString &initial = {}) override;
    std::optional<QString> saveFileName(QWidget *parent, const QString &title, const QString &suggested) override;

private:
    const Session *m_session = nullptr;
};
