#pragma once

#include <QMetaType>
#include <QString>
#include <QStringView>
#include <QtGlobal>

#include <limits>

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
    // To four decimals, halves to even, as the database converts a floating value; overflow()
    // for a value a Currency cannot hold.
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

    // What a sum gives that a Currency cannot hold; every further sum with it gives it again,
    // it shows as "Taşma" and it is never stored.
    static constexpr Currency overflow() { return fromRaw(std::numeric_limits<qint64>::min()); }
    constexpr bool isValid() const { return m_raw != std::numeric_limits<qint64>::min(); }

    constexpr bool isZero() const { return m_raw == 0; }
    constexpr Currency magnitude() const { return m_raw < 0 ? -*this : *this; }

    friend constexpr Currency operator+(Currency a, Currency b)
    {
        qint64 sum = 0;
        return !a.isValid() || !b.isValid() || __builtin_add_overflow(a.m_raw, b.m_raw, &sum) ? overflow()
                                                                                              : fromRaw(sum);
    }
    friend constexpr Currency operator-(Currency a, Currency b)
    {
        qint64 difference = 0;
        return !a.isValid() || !b.isValid() || __builtin_sub_overflow(a.m_raw, b.m_raw, &difference)
            ? overflow()
            : fromRaw(difference);
    }
    friend constexpr Currency operator-(Currency a) { return a.isValid() ? fromRaw(-a.m_raw) : a; }
    Currency &operator+=(Currency other) { return *this = *this + other; }
    Currency &operator-=(Currency other) { return *this = *this - other; }
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

// The largest whole amount an input field takes: what a Currency holds, less the decimals.
constexpr double MaxAmountEntry = 922337203685476.0;

Q_DECLARE_METATYPE(Currency)
