#pragma once
// The language screen. Choosing a language closes every open test screen first, so no screen
// keeps captions of the old language, then switches the session and stores the choice in Tools
// for the next start.

#include <QWidget>
#include <functional>

namespace Ui { class xIdioma; }
class Dialogs;
class Session;

class xIdioma : public QWidget
{
    Q_OBJECT
public:
    xIdioma(Session &session, Dialogs &dialogs, std::function<void()> closeTestScreens,
            QWidget *parent = nullptr);
    ~xIdioma() override;

    void btIdioma_Click(quint8 index);
    void Form_Load();

private:
    Ui::xIdioma *ui;
    Session &m_session;
    Dialogs &m_dialogs;
    std::function<void()> m_closeTestScreens;
};
