#include "widgets/RoundButton.h"

namespace {
constexpr char indicatorStyle[]
    = "QRadioButton::indicator::checked { border: 1px solid; border-radius: 5px; "
      "border-color: green; background-color: lightgreen; width: 10px; height: 10px; }"
      "QRadioButton::indicator::unchecked { border: 1px solid; border-radius: 5px; "
      "border-color: red; background-color: white; width: 10px; height: 10px; }"
      "QRadioButton::indicator::disabled { border: 1px solid; border-radius: 5px; "
      "border-color: grey; width: 10px; height: 10px; }";
static_assert(sizeof(indicatorStyle) - 1 == 424, "a rule has lost or gained a character");
} // namespace

RoundButton::RoundButton(int id, bool checked, QWidget* parent)
    : QRadioButton(parent)
    , m_id(id)
{
    setStyleSheet(QString::fromLatin1(indicatorStyle));
    setAutoExclusive(false);
    setCheckable(true);
    setChecked(checked);
}
