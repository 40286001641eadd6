#include "multiregion/RegionQuestions.h"

#include "multiregion/rules/RegionText.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace {

using Box = QMessageBox;

struct BoxContent
{
    Box::Icon icon;
    QString title;
    QString text;
    Box::StandardButtons buttons;
};

BoxContent contentFor(Question question, const QString& mode)
{
    const QString off = RegionText::tr("Deactivate Region");
    const bool isColumn = question == Question::ColumnOff || question == Question::ColumnOn;
    const QString part = isColumn ? RegionText::tr("column") : RegionText::tr("row");
    switch (question) {
    case Question::LoadDefaults:
        return {Box::Question, RegionText::tr("Load Default Configuration"),
                RegionText::tr("Overwrite the current region settings?"), Box::Yes | Box::No};
    case Question::RowOrColumnOff:
        return {Box::Question, off,
                RegionText::tr("Currently selected Arrangement Mode 'Tile' requires deactivation "
                               "of either a row or a column.\nWhat would you deactivate?"),
                Box::NoButton};
    case Question::SubsequentOff:
        return {Box::Information, off,
                RegionText::tr("Currently selected Arrangement Mode '%1' requires deactivation of "
                               "all subsequent regions.")
                    .arg(mode),
                Box::Ok | Box::Cancel};
    case Question::ColumnOff:
    case Question::RowOff:
        return {Box::Information, off,
                RegionText::tr("Currently selected Arrangement Mode '%1' requires deactivation of "
                               "the whole %2.")
                    .arg(mode, part),
                Box::Ok | Box::Cancel};
    default:
        return {Box::Information, RegionText::tr("Activate Region"),
                RegionText::tr("Arrangement Mode '%1' requires activation of the whole %2.")
                    .arg(mode, part),
                Box::Ok};
    }
}

} // namespace

Answer askUser(Question question, const QString& mode, QWidget* parent)
{
    const BoxContent content = contentFor(question, mode);
    const QPointer<Box> box
        = new Box(content.icon, content.title, content.text, content.buttons, parent);
    const bool isLoad = question == Question::LoadDefaults;
    const QAbstractButton* accepting = box->button(isLoad ? Box::Yes : Box::Ok);
    const QAbstractButton* column = nullptr;
    if (question == Question::RowOrColumnOff) {
        accepting = box->addButton(RegionText::tr("Row"), Box::YesRole);
        column = box->addButton(RegionText::tr("Column"), Box::NoRole);
        box->setEscapeButton(box->addButton(RegionText::tr("Cancel"), Box::RejectRole));
    }
    box->exec();
    const QAbstractButton* const clicked = box ? box->clickedButton() : nullptr;
    if (box)
        box->deleteLater();
    if (!clicked)
        return Answer::None;
    if (clicked == accepting)
        return Answer::Accepted;
    return clicked == column ? Answer::Column : Answer::Rejected;
}
