#include "featuretable/editors/IntegerEditor.h"

#include "featuretable/editors/SliderEditor.h"
#include "featuretable/editors/TextEditor.h"
#include "featuretable/record/IntegerNotation.h"
#include "featuretable/record/IntegerRange.h"

#include <QDoubleSpinBox>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <type_traits>

namespace {

/// Lets digits of a number outside the range be typed: eaten keys would leave another number than
/// the one that was meant.
template <typename Box> class PatientSpinBox : public Box
{
public:
    using Box::Box;

    QValidator::State validate(QString& input, int& position) const override
    {
        const QValidator::State state = Box::validate(input, position);
        if (state != QValidator::Invalid)
            return state;
        const bool isOpen = withoutUnit(input).size() <= mostDigits
            && QRegularExpression(QStringLiteral("^-?[0-9]*$"))
                   .match(withoutUnit(input))
                   .hasMatch();
        return isOpen ? QValidator::Intermediate : QValidator::Invalid;
    }

private:
    static constexpr int mostDigits = 19;

    QString withoutUnit(const QString& input) const
    {
        const QString unit = Box::suffix();
        return input.endsWith(unit) ? input.chopped(unit.size()) : input;
    }
};

/// Box is QSpinBox or QDoubleSpinBox; the range fits its Number without loss.
template <typename Box, typename Number> class IntegerEditor : public SliderEditor
{
public:
    IntegerEditor(const FeatureInfo& info, QWidget* parent)
        : SliderEditor(info, parent)
        , m_range(integerRange(info))
        , m_field(new PatientSpinBox<Box>(this))
    {
        if constexpr (std::is_same_v<Box, QDoubleSpinBox>)
            m_field->setDecimals(0);
        m_field->setLocale(QLocale::c());
        m_field->setRange(static_cast<Number>(m_range.minimum),
                          static_cast<Number>(m_range.maximum));
        m_field->setSingleStep(static_cast<Number>(singleStep(info)));
        if (!info.unit.empty())
            m_field->setSuffix(QLatin1Char(' ') + QString::fromStdString(info.unit));
        addControl(m_field, "editorField", 1);
        addSlider(sliderRange(info));
        connect(m_field, qOverload<Number>(&Box::valueChanged), this, &IntegerEditor::onChanged);
    }

protected:
    bool showValue(const QVariant& value) override
    {
        bool isInteger = false;
        const std::int64_t integer = value.toLongLong(&isInteger);
        if (!isInteger)
            return false;
        m_field->setValue(
            static_cast<Number>(std::clamp(integer, m_range.minimum, m_range.maximum)));
        m_field->selectAll();
        return true;
    }

    QVariant enteredValue() override
    {
        if (!isAcceptable())
            return {};
        m_field->interpretText();
        return QVariant::fromValue<qint64>(static_cast<qint64>(m_field->value()));
    }

    bool isAcceptable() const override { return m_field->hasAcceptableInput(); }

    void showNumber(double value) override
    {
        const QSignalBlocker blocker(m_field);
        m_field->setValue(static_cast<Number>(value));
    }

private:
    std::int64_t singleStep(const FeatureInfo& info) const
    {
        const std::int64_t increment = toInteger(info.increment).value_or(1);
        return std::clamp<std::int64_t>(increment, 1, std::max<std::int64_t>(1, m_range.maximum));
    }

    void onChanged(Number value) { moveSlider(static_cast<double>(value)); }

    IntegerRange m_range;
    Box* m_field;
};

} // namespace

DelegateWidget* createIntegerEditor(const FeatureInfo& info, QWidget* parent)
{
    const std::int64_t value = toInteger(info.value).value_or(0);
    switch (integerFieldFor(integerRange(info), value)) {
    case IntegerField::Spin32:
        return new IntegerEditor<QSpinBox, int>(info, parent);
    case IntegerField::Spin53:
        return new IntegerEditor<QDoubleSpinBox, double>(info, parent);
    case IntegerField::Text:
        break;
    }
    return new TextEditor(info, &decimalNotation(), parent);
}
