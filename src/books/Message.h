#pragma once

#include <QString>

#include <functional>

// Every message of the program to the user. The windowed program installs a responder that
// shows each as a message box (ShowMessageBox); tests install one that records the message and
// answers in place of a person. Without a responder a message goes to standard error and a
// question is answered no.
namespace Message {

enum class Kind { Exclamation, Information, Question, Notice };

// Refusals and failures.
void exclamation(const QString &text);
// Notices.
void information(const QString &text);
// A remark with the question icon and only an OK button ("Tutar Yazılmamış..").
void notice(const QString &text);
// A Yes/No question, "Hayır" by default; true for Yes.
bool question(const QString &text);

// Answers every following message (an empty function restores standard error).
// For a question the responder's result is the answer; for the others it is ignored.
using Responder = std::function<bool(Kind kind, const QString &text)>;
void setResponder(Responder responder);

} // namespace Message
