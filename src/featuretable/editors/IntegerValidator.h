#pragma once

#include "featuretable/record/IntegerNotation.h"
#include "featuretable/record/IntegerRange.h"

#include <QRegularExpressionValidator>

/// Accepts the texts of a notation whose number lies in a range. A number outside may become
/// another with more keys, so it is not refused but not accepted either.
class IntegerValidator : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    IntegerValidator(const IntegerNotation& notation, const IntegerRange& range, QObject* parent);

    State validate(QString& text, int& position) const override;

private:
    IntegerNotation m_notation;
    IntegerRange m_range;
};
