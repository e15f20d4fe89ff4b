#pragma once

#include "controls/Screen.h"

#include <QStyle>

#include <array>

class BalancePanel;
class QLabel;
class ValueLabel;
class QToolButton;
class XText;

// "Cari Kartlar" (Form3): creates, shows, edits and deletes account cards, with the balance
// panel of the shown account. Moves through the cards in code order on the shared carkart
// cursor.
class AccountCardsScreen : public Screen
{
    Q_OBJECT
public:
    explicit AccountCardsScreen(QWidget *parent = nullptr);
    ~AccountCardsScreen() override;

    void save();
    void remove();
    void goLast();
    void goNext();
    void goPrevious();
    void goFirst();

private:
    void addButton(int index, QStyle::StandardPixmap picture, const QString &themeIcon, const QString &text,
        void (AccountCardsScreen::*action)());
    void fieldKey(int &key, Qt::KeyboardModifiers &modifiers);
    void codeLeft();
    void display();
    void showMoved(bool moved);
    void clearCard();

    std::array<XText *, 12> m_fields {};
    ValueLabel *m_type;
    BalancePanel *m_balance;
    std::array<QToolButton *, 6> m_buttons {};
    QString m_lastKod;
};

// The name of a card's type: "Müşteri" (0 and any other value), "Personel" (1), "Diğer" (2).
QString CardTypeName(int tip);
