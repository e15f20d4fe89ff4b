#pragma once

#include <QMetaType>
#include <QString>
#include <QStringView>
#include <QtGlobal>

// A money amount: a signed 64-bit count of ten-thousandths (four fixed decimals).
// No floating point is involved in storing, adding or rounding it.
class Currency
{
public:
    static constexpr qint64 Scale = 10000;

    constexpr Currency() = default;
    static constexpr Currency fromRaw(qint64 tenThousandths)
    {
        Currency c;
        c.m_raw = tenThousandths;
        return c;
    }
    static constexpr Currency fromUnits(qint64 units) { return fromRaw(units * Scale); }
    // To four decimals, halves to even, as the database converts a floating value.
    static Currency fromDouble(double value, bool *ok = nullptr);
    // Plain decimal notation with "." ("-1234.5", "12", ".5"); blanks around it are allowed.
    // Decimals past the fourth round halves to even.
    static Currency fromString(QStringView text, bool *ok = nullptr);

    constexpr qint64 raw() const { return m_raw; }
    // Whole units, truncated toward zero.
    constexpr qint64 wholeUnits() const { return m_raw / Scale; }
    double toDouble() const { return double(m_raw) / Scale; }
    // Plain decimal notation with "." and no trailing zeros: "1234.5", "-0.05", "0".
    QString toString() const;

    constexpr bool isZero() const { return m_raw == 0; }
    constexpr Currency magnitude() const { return fromRaw(m_raw < 0 ? -m_raw : m_raw); }

    friend constexpr Currency operator+(Currency a, Currency b) { return fromRaw(a.m_raw + b.m_raw); }
    friend constexpr Currency operator-(Currency a, Currency b) { return fromRaw(a.m_raw - b.m_raw); }
    friend constexpr Currency operator-(Currency a) { return fromRaw(-a.m_raw); }
    Currency &operator+=(Currency other)
    {
        m_raw += other.m_raw;
        return *this;
    }
    Currency &operator-=(Currency other)
    {
        m_raw -= other.m_raw;
        return *this;
    }
    friend constexpr bool operator==(Currency a, Currency b) { return a.m_raw == b.m_raw; }
    friend constexpr bool operator!=(Currency a, Currency b) { return a.m_raw != b.m_raw; }
    friend constexpr bool operator<(Currency a, Currency b) { return a.m_raw < b.m_raw; }
    friend constexpr bool operator>(Currency a, Currency b) { return a.m_raw > b.m_raw; }
    friend constexpr bool operator<=(Currency a, Currency b) { return a.m_raw <= b.m_raw; }
    friend constexpr bool operator>=(Currency a, Currency b) { return a.m_raw >= b.m_raw; }

private:
    qint64 m_raw = 0;
};

// Rounds value to a multiple of step (step > 0), halves to the even multiple.
qint64 roundHalfEven(qint64 value, qint64 step);

Q_DECLARE_METATYPE(Currency)
