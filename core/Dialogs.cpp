#include "Dialogs.h"

#include "Session.h"
#include "Texts.h"

#include <QPushButton>

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

void QtDialogs::Mensagem(QWidget *parent, const QString &key, quint8 idioma, const QString &porta)
{
    const auto m = Texts::Mensagem(key, idioma, porta);
    if (!m)
        return;
    if (m->icon == Texts::Icon::Critical)
        QMessageBox::critical(parent, m->title, m->text);
    else
        QMessageBox::information(parent, m->title, m->text);
}

void QtDialogs::information(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox::information(parent, title, text);
}

void QtDialogs::critical(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox::critical(parent, title, text);
}

bool QtDialogs::question(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    if (m_session) {
        box.button(QMessageBox::Yes)->setText(m_session->Traduz(QStringLiteral("Sim")));
        box.button(QMessageBox::No)->setText(m_session->Traduz(QStringLiteral("Não")));
    }
    return box.exec() == QMessageBox::Yes;
}

std::optional<QString> QtDialogs::input(QWidget *parent, const QString &title, const QString &prompt,
                                        const QString &initial)
{
    bool ok = false;
    const QString text = QInputDialog::getText(parent, title, prompt, QLineEdit::Normal, initial, &ok);
    if (!ok)
        return std::nullopt;
    return text;
}

std::optional<QString> QtDialogs::saveFileName(QWidget *parent, const QString &title, const QString &suggested)
{
    const QString path = QFileDialog::getSaveFileName(parent, title, suggested);
    if (path.isEmpty())
        return std::nullopt;
    return path;
}
