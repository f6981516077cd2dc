#pragma once
// The pictures beside a status text: a green tick for a good answer, a red cross for a bad one.
// Drawn rather than shipped as files, so they scale with the screen and need no resources.

#include <QPixmap>

namespace StatusImages {

QPixmap ok(int size = 32);
QPixmap no(int size = 32);

} // namespace StatusImages
