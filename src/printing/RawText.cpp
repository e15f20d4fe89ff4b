#include "printing/RawText.h"

#include <QStringEncoder>

namespace {

// Turkish letters: code page 857 instead of their Windows-1254 codes.
char16_t cp857(QChar c)
{
    switch (c.unicode()) {
    case u'Ç':
        return 128;
    case u'Ğ':
        return 166;
    case u'Ö':
        return 153;
    case u'Ü':
        return 154;
    case u'İ':
        return 152;
    case u'Ş':
        return 158;
    case u'ç':
        return 135;
    case u'ğ':
        return 167;
    case u'ö':
        return 148;
    case u'ü':
        return 129;
    case u'ı':
        return 141;
    case u'ş':
        return 159;
    default:
        return 0;
    }
}

QByteArray encoded(const QString &text)
{
    QStringEncoder windows1254("windows-1254");
    QByteArray bytes;
    bytes.reserve(text.size());
    for (QChar c : text) {
        if (const char16_t code = cp857(c))
            bytes += char(code);
        else if (c.unicode() < 128)
            bytes += char(c.unicode());
        else
            bytes += QByteArray(windows1254(QStringView(&c, 1)));
    }
    return bytes;
}

} // namespace

bool OverflowsField(const QString &text, int en, int algn)
{
    return algn == 1 && en > 0 && text.size() > en;
}

QString FitField(const QString &text, int en, int algn)
{
    if (en < 1)
        return text;
    if (algn == 1)
        return OverflowsField(text, en, algn) ? QString(en, u'#') : (QString(en, u' ') + text).right(en);
    if (algn == 2) {
        const int pad = int(en - text.size()) / 2;
        if (pad < 0)
            return text; // wider than the field: printed as it is
        return QString(pad, u' ') + text + QString(pad, u' ');
    }
    return (text + QString(en, u' ')).left(en);
}

QByteArray RawField(const QString &text, bool bold, bool italic, bool underline)
{
    QByteArray bytes = encoded(text);
    if (bold)
        bytes = "\x1bG" + bytes + "\x1bH";
    if (italic)
        bytes = "\x1b"
                "4"
            + bytes
            + "\x1b"
              "5";
    if (underline)
        bytes = QByteArray("\x1b-\x01", 3) + bytes + QByteArray("\x1b-\x00", 3);
    return bytes;
}
