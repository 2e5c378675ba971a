#ifndef TRACKING_CLAMPINGSPINBOX_H
#define TRACKING_CLAMPINGSPINBOX_H

#include <QDoubleSpinBox>
#include <QLocale>
#include <QSpinBox>

// A spin box that takes what the operator types or pastes as a whole: a
// number beyond the range may be typed, and becomes the nearest bound when
// the edit is finished. Qt's own boxes refuse the keystroke that leaves the
// range, so "25" typed into a box that ends at 20 would stay "2" and be sent.
template<typename Base> class Clamping : public Base
{
public:
    explicit Clamping(QWidget *parent = nullptr)
        : Base(parent)
    {
    }

    QValidator::State validate(QString &text, int &pos) const override
    {
        const QValidator::State state = Base::validate(text, pos);
        if (state != QValidator::Invalid)
            return state;
        // A number outside the range is on its way to the nearest bound.
        bool isNumber = false;
        number(text, &isNumber);
        return isNumber ? QValidator::Intermediate : QValidator::Invalid;
    }

    // Called when the edit is finished with a text that is no value yet.
    void fixup(QString &text) const override
    {
        bool isNumber = false;
        const double typed = number(text, &isNumber);
        if (!isNumber) {
            Base::fixup(text);
            return;
        }
        using Value = decltype(Base::value());
        const Value bound = Value(qBound(double(Base::minimum()), typed, double(Base::maximum())));
        text = Base::prefix() + Base::textFromValue(bound) + Base::suffix();
    }

private:
    double number(const QString &text, bool *isNumber) const
    {
        QString digits = text;
        if (digits.startsWith(Base::prefix()))
            digits.remove(0, Base::prefix().size());
        if (digits.endsWith(Base::suffix()))
            digits.chop(Base::suffix().size());
        return Base::locale().toDouble(digits.trimmed(), isNumber);
    }
};

using ClampingSpinBox = Clamping<QSpinBox>;
using ClampingDoubleSpinBox = Clamping<QDoubleSpinBox>;

#endif // TRACKING_CLAMPINGSPINBOX_H
