#pragma once
// Opening a document or a web page with the program the desktop associates with it. Screens
// reach the desktop only through this interface, so tests can record what would have been
// opened instead of launching a PDF viewer.

#include <QString>

class Shell
{
public:
    virtual ~Shell() = default;
    // Opens a local file (absolute path) or a URL; false when the desktop refused.
    virtual bool open(const QString &pathOrUrl) = 0;
};

// The desktop's own handler, through QDesktopServices.
class QtShell : public Shell
{
public:
    bool open(const QString &pathOrUrl) override;
};
