#include "featuretable/editors/TextEditor.h"

#include "featuretable/record/ValueRange.h"
#include "featuretable/record/ValueText.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace {

/// A number outside its range may become another with more keys, so it is not refused but not
/// accepted either.
class RangeValidator : public QRegularExpressionValidator
{
public:
    RangeValidator(const FeatureInfo& info, const IntegerNotation& notation, QObject* parent)
        : QRegularExpressionValidator(QRegularExpression(notation.pattern), parent)
        , m_notation(notation)
        , m_range(integerRange(info))
    {
    }

    State validate(QString& text, int& position) const override
    {
        const State state = QRegularExpressionValidator::validate(text, position);
        if (state != Acceptable)
            return state;
        const auto value = textToInteger(text, m_notation);
        return value && m_range.contains(*value) ? Acceptable : Intermediate;
    }

private:
    const IntegerNotation m_notation;
    const ValueRange<std::int64_t> m_range;
};

} // namespace

TextEditor::TextEditor(const FeatureInfo& info, const IntegerNotation* notation, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_notation(notation)
    , m_field(new QLineEdit(this))
{
    addControl(m_field, "editorField", 1);
    if (!notation)
        return;
    m_field->setValidator(new RangeValidator(info, *notation, m_field));
    addUnit(info);
}

bool TextEditor::showValue(const QVariant& value)
{
    bool isShown = value.canConvert<QString>();
    const qint64 integer = m_notation ? value.toLongLong(&isShown) : 0;
    if (isShown)
        m_field->setText(m_notation ? integerText(integer, *m_notation) : value.toString());
    m_field->selectAll();
    return isShown;
}

QVariant TextEditor::enteredValue()
{
    if (!m_field->hasAcceptableInput())
        return {};
    if (!m_notation)
        return m_field->text();
    const auto value = textToInteger(m_field->text(), *m_notation);
    return value ? QVariant::fromValue<qint64>(*value) : QVariant();
}
