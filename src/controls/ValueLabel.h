#pragma once

#include <QLabel>

// A read-only label that shows a value (an amount, a balance, a type). What it shows is its
// accessible name, so that screen readers and checks read the value itself; what the value is
// ("Bakiye Borç", "TOPLAM") is its accessible description.
class ValueLabel : public QLabel
{
    Q_OBJECT
public:
    ValueLabel(const QString &meaning, QWidget *parent);

    void setValue(const QString &text);
    // At least this wide, and always as wide as the value it shows.
    void setLeastWidth(int width);
    // The look of an amount: right-aligned in a frame of at least this width.
    void showAsAmount(int leastWidth);
    QString value() const { return text(); }

    QSize minimumSizeHint() const override;

private:
    int m_leastWidth = 0;
};
