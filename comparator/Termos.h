#pragma once
// The disclaimer shown before the main window until the technician agrees to it once. Agreeing
// closes it with Accepted; declining (or closing the box) with Rejected, and the program ends.

#include <QDialog>

class QPlainTextEdit;
class QPushButton;
class Session;

class Termos : public QDialog
{
    Q_OBJECT
public:
    explicit Termos(const Session &session, QWidget *parent = nullptr);

private:
    QPlainTextEdit *m_texto;
    QPushButton *m_yes;
    QPushButton *m_no;
};
