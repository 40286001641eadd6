#pragma once

#include "multiregion/rules/ToggleRules.h"

class QString;
class QWidget;

enum class Answer {
    Accepted, ///< the row, where that is the question
    Column,
    Rejected,
    None, ///< the box went without an answer, and its parent perhaps with it
};

/// Asks in a box over @p parent, which is closed on return.
/// @param mode the arrangement's name, for the text
Answer askUser(Question question, const QString& mode, QWidget* parent);
