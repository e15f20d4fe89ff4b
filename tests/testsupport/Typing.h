#pragma once

#include <QString>

class QWidget;

// Types the keys of a text into a widget as a person would: "\b" is Backspace, "\r" Enter,
// "\x7f" Delete; every other character is its own key.
void typeKeys(QWidget *widget, const QString &keys);
