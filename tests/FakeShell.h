#pragma once
// Records what a screen would have opened with the desktop instead of launching a viewer.

#include "Shell.h"

#include <QStringList>

class FakeShell : public Shell
{
public:
    QStringList opened;
    bool open(const QString &pathOrUrl) override
    {
        opened << pathOrUrl;
        return true;
    }
};
