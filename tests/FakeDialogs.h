#pragma once
// A scripted stand-in for the message boxes: records what would have been shown and answers
// questions and input boxes from queues the test fills.

#include "Dialogs.h"

#include <QStringList>
#include <deque>

class FakeDialogs : public Dialogs
{
public:
    QStringList shown;              // "MSG_KEY", "info:title|text", "critical:title|text", "question:title|text"
    std::deque<bool> answers;       // next Yes/No answers; Yes when empty
    std::deque<std::optional<QString>> inputs; // next input answers; cancelled when empty
    std::deque<QString> saveNames;  // next file names to save to; cancelled when empty

    void Mensagem(QWidget *, const QString &key, quint8, const QString &) override { shown << key; }
    void information(QWidget *, const QString &title, const QString &text) override
    {
        shown << QStringLiteral("info:") + title + u'|' + text;
    }
    void critical(QWidget *, const QString &title, const QString &text) override
    {
        shown << QStringLiteral("critical:") + title + u'|' + text;
    }
    bool question(QWidget *, const QString &title, const QString &text) override
    {
        shown << QStringLiteral("question:") + title + u'|' + text;
        if (answers.empty())
            return true;
        const bool a = answers.front();
        answers.pop_front();
        return a;
    }
    std::optional<QString> input(QWidget *, const QString &title, const QString &prompt, const QString &) override
    {
        shown << QStringLiteral("input:") + title + u'|' + prompt;
        if (inputs.empty() || !inputs.front().has_value()) {
            if (!inputs.empty())
                inputs.pop_front();
            return std::nullopt;
        }
        const QString a = *inputs.front();
        inputs.pop_front();
        return a;
    }
    std::optional<QString> saveFileName(QWidget *, const QString &title, const QString &) override
    {
        shown << QStringLiteral("save:") + title;
        if (saveNames.empty())
            return std::nullopt;
        const QString a = saveNames.front();
        saveNames.pop_front();
        return a;
    }
};
