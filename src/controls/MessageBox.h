#pragma once

#include "books/Message.h"

// A message as a box over the active window: title "Quandel", the icon of its kind, "Tamam"
// or, for a question, "Evet"/"Hayır" with "Hayır" as the default. The windowed program installs
// it as the message responder. True when a question was answered yes.
bool ShowMessageBox(Message::Kind kind, const QString &text);
