#include "featuretable/editors/IntegerEditor.h"

#include "featuretable/editors/SliderEditor.h"
#include "featuretable/editors/TextEditor.h"
#include "featuretable/record/ValueRange.h"
#include "featuretable/record/ValueText.h"

#include <QDoubleSpinBox>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// Lets a number outside the range be typed: eaten keys would leave another than was meant.
template <typename Box> class PatientSpinBox : public Box
{
public:
    using Box::Box;

    QValidator::State validate(QString& input, int& position) const override
    {
        static const QRegularExpression digits(QStringLiteral("^-?[0-9]{0,19}$"));
        const QValidator::State state = Box::validate(input, position);
        const QString unit = Box::suffix();
        const QString text = input.endsWith(unit) ? input.chopped(unit.size()) : input;
        return state == QValidator::Invalid && digits.match(text).hasMatch()
            ? QValidator::Intermediate
            : state;
    }
};

/// Box is QSpinBox or QDoubleSpinBox; the range fits its Number without loss.
template <typename Box, typename Number> class IntegerEditor : public SliderEditor
{
public:
    IntegerEditor(const FeatureInfo& info, QWidget* parent)
        : SliderEditor(info, parent)
        , m_field(new PatientSpinBox<Box>(this))
    {
        const auto range = integerRange(info);
        const std::int64_t largestStep = std::max<std::int64_t>(1, range.maximum);
        const std::int64_t step = toInteger(info.increment).value_or(1);
        if constexpr (std::is_same_v<Box, QDoubleSpinBox>)
            m_field->setDecimals(0);
        m_field->setLocale(QLocale::c());
        m_field->setRange(static_cast<Number>(range.minimum), static_cast<Number>(range.maximum));
        m_field->setSingleStep(static_cast<Number>(std::clamp<std::int64_t>(step, 1, largestStep)));
        if (!info.unit.empty())
            m_field->setSuffix(QLatin1Char(' ') + QString::fromStdString(info.unit));
        addControl(m_field, "editorField", 1);
        addSlider(info);
        connect(m_field, qOverload<Number>(&Box::valueChanged), this, [this](Number value) {
            touch();
            moveSlider(static_cast<double>(value));
        });
    }

protected:
    QVariant enteredValue() override
    {
        if (!m_field->hasAcceptableInput())
            return {};
        m_field->interpretText();
        return QVariant::fromValue<qint64>(static_cast<qint64>(m_field->value()));
    }

    void showNumber(double value) override
    {
        const QSignalBlocker blocker(m_field);
        m_field->setValue(static_cast<Number>(
            std::clamp(value, double(m_field->minimum()), double(m_field->maximum()))));
        m_field->selectAll();
    }

private:
    Box* m_field;
};

} // namespace

DelegateWidget* createIntegerEditor(const FeatureInfo& info, QWidget* parent)
{
    switch (integerField(info)) {
    case IntegerField::Spin32:
        return new IntegerEditor<QSpinBox, int>(info, parent);
    case IntegerField::Spin53:
        return new IntegerEditor<QDoubleSpinBox, double>(info, parent);
    case IntegerField::Text:
        break;
    }
    return new TextEditor(info, &decimalNotation, parent);
}
