#pragma once
// The menu of the program: which screen each element of the main window's menu opens. Kept out
// of main() so that the end-to-end tests and the gallery build exactly the menu a technician gets.

#include <QStringList>

class Inicial;
class Shell;

namespace Screens {

// Registers every screen that is built; `shell` opens PDFs and must outlive the window.
void registerAll(Inicial &inicial, Shell &shell);

// The names of the screens registerAll adds, in menu order.
QStringList names();

} // namespace Screens
