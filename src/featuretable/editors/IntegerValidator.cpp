#include "featuretable/editors/IntegerValidator.h"

IntegerValidator::IntegerValidator(const IntegerNotation& notation, const IntegerRange& range,
                                   QObject* parent)
    : QRegularExpressionValidator(QRegularExpression(notation.pattern), parent)
    , m_notation(notation)
    , m_range(range)
{
}

QValidator::State IntegerValidator::validate(QString& text, int& position) const
{
    const State state = QRegularExpressionValidator::validate(text, position);
    if (state != Acceptable)
        return state;
    const auto value = m_notation.toValue(text);
    return value && m_range.contains(*value) ? Acceptable : Intermediate;
}
