#include "controls/MessageBox.h"
#include "controls/Translations.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;

// The program's message boxes as a person sees them: title, icon, Turkish buttons from Qt's
// own translations, and the default a stray Enter presses.
class TestMessage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(LoadQtTranslations());
        Message::setResponder(ShowMessageBox);
    }

    void boxes_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("icon");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QString>("pressedByEnter");
        QTest::newRow("exclamation") << int(Message::Kind::Exclamation) << int(QMessageBox::Warning)
                                     << QStringList { "Tamam" } << u"Tamam"_s;
        QTest::newRow("information") << int(Message::Kind::Information) << int(QMessageBox::Information)
                                     << QStringList { "Tamam" } << u"Tamam"_s;
        QTest::newRow("notice") << int(Message::Kind::Notice) << int(QMessageBox::Question) << QStringList { "Tamam" }
                                << u"Tamam"_s;
        QTest::newRow("question") << int(Message::Kind::Question) << int(QMessageBox::Question)
                                  << QStringList { "&Evet", "&Hayır" } << u"&Hayır"_s;
    }

    void boxes()
    {
        QFETCH(int, kind);
        QFETCH(int, icon);
        QFETCH(QStringList, buttons);
        QFETCH(QString, pressedByEnter);
        m_buttons.clear();
        QTimer::singleShot(0, this, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            m_title = box->windowTitle();
            m_icon = int(box->icon());
            for (QAbstractButton *button : box->buttons())
                m_buttons << button->text();
            m_buttons.sort();
            m_default = box->defaultButton() ? box->defaultButton()->text() : QString();
            QTimer::singleShot(0, box, [box] { QTest::keyClick(box, Qt::Key_Return); });
        });
        bool answer = true;
        switch (Message::Kind(kind)) {
        case Message::Kind::Exclamation:
            Message::exclamation(QStringLiteral("Yazıcı Açılamadı"));
            break;
        case Message::Kind::Information:
            Message::information(QStringLiteral("Kayıt Yapılamıyor."));
            break;
        case Message::Kind::Notice:
            Message::notice(QStringLiteral("Tutar Yazılmamış.."));
            break;
        case Message::Kind::Question:
            answer = Message::question(QStringLiteral("Kayıt Silinecek Eminmisiniz ?"));
            break;
        }
        QCOMPARE(m_title, QStringLiteral("Quandel"));
        QCOMPARE(m_icon, icon);
        QCOMPARE(m_buttons, buttons);
        if (Message::Kind(kind) == Message::Kind::Question) {
            QCOMPARE(m_default, pressedByEnter);
            QVERIFY(!answer); // Enter answered "Hayır"
        }
    }

private:
    QStringList m_buttons;
    QString m_default;
    QString m_title;
    int m_icon = 0;
};

QTEST_MAIN(TestMessage)
#include "tst_message.moc"
