#pragma once

#include <QIcon>
#include <QPixmap>

// The program's own pictures, drawn at run time: the 300 × 170 splash and the window icon.
QPixmap SplashPicture();
QIcon ProgramIcon();
