#pragma once

class QMdiArea;
class QWidget;

// Where screens live: the main window's work area. The main window registers it on start.
void SetMainArea(QMdiArea *area);
QMdiArea *MainArea();

// Shows a screen as a sub-window of the main window; a screen that is already there is brought
// forward. Mode 0 shows it without blocking; a mode above 0 first shows it modally on its own
// and moves it into the main window when that returns.
void OpenInMain(QWidget *screen, int mode = 0);
