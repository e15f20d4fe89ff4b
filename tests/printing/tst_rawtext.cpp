#include "printing/RawText.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestRawText : public QObject
{
    Q_OBJECT
private slots:
    void fitting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("en");
        QTest::addColumn<int>("algn");
        QTest::addColumn<QString>("fitted");
        QTest::newRow("left") << u"AB"_s << 5 << 0 << u"AB   "_s;
        QTest::newRow("right") << u"AB"_s << 5 << 1 << u"   AB"_s;
        QTest::newRow("centred, one short") << u"AB"_s << 5 << 2 << u" AB "_s;
        QTest::newRow("centred, even") << u"AB"_s << 6 << 2 << u"  AB  "_s;
        QTest::newRow("unknown alignment is left") << u"AB"_s << 4 << 7 << u"AB  "_s;
        QTest::newRow("own width") << u"ABC"_s << 0 << 1 << u"ABC"_s;
        QTest::newRow("left cut") << u"ABCDEF"_s << 4 << 0 << u"ABCD"_s;
        QTest::newRow("right, too wide: marks, never the last digits") << u"10001"_s << 4 << 1 << u"####"_s;
        QTest::newRow("right, just fits") << u"9999"_s << 4 << 1 << u"9999"_s;
        QTest::newRow("centred, one too long") << u"ABCDE"_s << 4 << 2 << u"ABCDE"_s;
        QTest::newRow("centred, far too long") << u"ABCDEFGH"_s << 4 << 2 << u"ABCDEFGH"_s;
    }

    void fitting()
    {
        QFETCH(QString, text);
        QFETCH(int, en);
        QFETCH(int, algn);
        QFETCH(QString, fitted);
        QCOMPARE(FitField(text, en, algn), fitted);
    }

    void bytes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("bold");
        QTest::addColumn<bool>("italic");
        QTest::addColumn<bool>("underline");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("Turkish letters in code page 857")
            << u"ŞİŞLİ ÇAĞ"_s << false << false << false << QByteArray("\x9e\x98\x9e\x4c\x98\x20\x80\x41\xa6");
        QTest::newRow("lower-case letters")
            << u"çğıöşü"_s << false << false << false << QByteArray("\x87\xa7\x8d\x94\x9f\x81");
        QTest::newRow("other letters keep Windows-1254")
            << u"Âé€"_s << false << false << false << QByteArray("\xc2\xe9\x80");
        QTest::newRow("bold") << u"A"_s << true << false << false
                              << QByteArray("\x1bG"
                                            "A"
                                            "\x1bH");
        QTest::newRow("italic") << u"A"_s << false << true << false
                                << QByteArray("\x1b"
                                              "4A\x1b"
                                              "5");
        QTest::newRow("underline") << u"A"_s << false << false << true
                                   << QByteArray("\x1b-\x01"
                                                 "A\x1b-\x00",
                                          7);
        QTest::newRow("all three nest bold, italic, underline") << u"A"_s << true << true << true
                                                                << QByteArray("\x1b-\x01\x1b"
                                                                              "4\x1bG"
                                                                              "A\x1bH\x1b"
                                                                              "5\x1b-\x00",
                                                                       15);
    }

    void bytes()
    {
        QFETCH(QString, text);
        QFETCH(bool, bold);
        QFETCH(bool, italic);
        QFETCH(bool, underline);
        QFETCH(QByteArray, expected);
        QCOMPARE(RawField(text, bold, italic, underline), expected);
    }
};

QTEST_APPLESS_MAIN(TestRawText)
#include "tst_rawtext.moc"
