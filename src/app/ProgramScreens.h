#pragma once

class MainWindow;

// Tells the main window every screen the program has, which enables their menu items.
void AddProgramScreens(MainWindow &window);
