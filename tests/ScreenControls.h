#pragma once
// Reading a screen the way a technician does: its controls found by their names.

#include "ConsoleTextEdit.h"

#include <QLabel>
#include <QPushButton>

// A control of a screen by its name; a missing one ends the test run loudly.
template<typename T = QWidget> T *child(QWidget *screen, const QString &name)
{
    T *w = screen->findChild<T *>(name);
    if (!w)
        qFatal("no control %s", qPrintable(name));
    return w;
}

inline QString text(QWidget *screen, const QString &label) { return child<QLabel>(screen, label)->text(); }
inline QString rawText(QWidget *screen, const QString &name) { return child<ConsoleTextEdit>(screen, name)->rawText(); }
inline void click(QWidget *screen, const QString &button) { child<QPushButton>(screen, button)->click(); }
inline bool shown(QWidget *screen, const QString &name) { return child(screen, name)->isVisibleTo(screen); }
