#include "printing/RawText.h"

#include <QtTest>

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
        QTest::newRow("left") << "AB" << 5 << 0 << "AB   ";
        QTest::newRow("right") << "AB" << 5 << 1 << "   AB";
        QTest::newRow("centred, one short") << "AB" << 5 << 2 << " AB ";
        QTest::newRow("centred, even") << "AB" << 6 << 2 << "  AB  ";
        QTest::newRow("unknown alignment is left") << "AB" << 4 << 7 << "AB  ";
        QTest::newRow("own width") << "ABC" << 0 << 1 << "ABC";
        QTest::newRow("left cut") << "ABCDEF" << 4 << 0 << "ABCD";
        QTest::newRow("right, too wide: marks, never the last digits") << "10001" << 4 << 1 << "####";
        QTest::newRow("right, just fits") << "9999" << 4 << 1 << "9999";
        QTest::newRow("centred, one too long") << "ABCDE" << 4 << 2 << "ABCDE";
        QTest::newRow("centred, far too long") << "ABCDEFGH" << 4 << 2 << "ABCDEFGH";
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
            << "ŞİŞLİ ÇAĞ" << false << false << false << QByteArray("\x9e\x98\x9e\x4c\x98\x20\x80\x41\xa6");
        QTest::newRow("lower-case letters")
            << "çğıöşü" << false << false << false << QByteArray("\x87\xa7\x8d\x94\x9f\x81");
        QTest::newRow("other letters keep Windows-1254")
            << "Âé€" << false << false << false << QByteArray("\xc2\xe9\x80");
        QTest::newRow("bold") << "A" << true << false << false
                              << QByteArray("\x1bG"
                                            "A"
                                            "\x1bH");
        QTest::newRow("italic") << "A" << false << true << false
                                << QByteArray("\x1b"
                                              "4A\x1b"
                                              "5");
        QTest::newRow("underline") << "A" << false << false << true
                                   << QByteArray("\x1b-\x01"
                                                 "A\x1b-\x00",
                                          7);
        QTest::newRow("all three nest bold, italic, underline") << "A" << true << true << true
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
