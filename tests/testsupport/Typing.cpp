#include "testsupport/Typing.h"

#include <QtTest>

void typeKeys(QWidget *widget, const QString &keys)
{
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const QChar c = keys[i];
        if (c == u'\b')
            QTest::keyClick(widget, Qt::Key_Backspace);
        else if (c == u'\r')
            QTest::keyClick(widget, Qt::Key_Return);
        else if (c == u'\x7f')
            QTest::keyClick(widget, Qt::Key_Delete);
        else if (c.unicode() < 128)
            QTest::keyClick(widget, c.toLatin1());
        else if (c.isHighSurrogate() && i + 1 < keys.size()) // a character outside the basic plane: one key
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, keys.mid(i++, 2), Qt::NoModifier);
        else
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}
