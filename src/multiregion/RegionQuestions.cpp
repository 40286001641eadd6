#include "multiregion/RegionQuestions.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MultiROIWidget)
};

QString textOf(Question question, const QString& mode)
{
    const bool isColumn = question == Question::ColumnOff || question == Question::ColumnOn;
    const QString part = isColumn ? Text::tr("column") : Text::tr("row");
    switch (question) {
    case Question::SubsequentOff:
        return Text::tr("Currently selected Arrangement Mode '%1' requires deactivation of all "
                        "subsequent regions.")
            .arg(mode);
    case Question::ColumnOff:
    case Question::RowOff:
        return Text::tr("Currently selected Arrangement Mode '%1' requires deactivation of the "
                        "whole %2.")
            .arg(mode, part);
    case Question::RowOrColumnOff:
        return Text::tr("Currently selected Arrangement Mode 'Tile' requires deactivation of "
                        "either a row or a column.\nWhat would you deactivate?");
    case Question::ColumnOn:
    case Question::RowOn:
        return Text::tr("Arrangement Mode '%1' requires activation of the whole %2.")
            .arg(mode, part);
    default:
        return Text::tr("Overwrite the current region settings?");
    }
}

QString titleOf(Question question)
{
    if (question == Question::LoadDefaults)
        return Text::tr("Load Default Configuration");
    const bool isOn = question == Question::ColumnOn || question == Question::RowOn;
    return isOn ? Text::tr("Activate Region") : Text::tr("Deactivate Region");
}

QMessageBox::StandardButtons buttonsOf(Question question)
{
    switch (question) {
    case Question::RowOrColumnOff:
        return QMessageBox::NoButton;
    case Question::LoadDefaults:
        return QMessageBox::Yes | QMessageBox::No;
    case Question::ColumnOn:
    case Question::RowOn:
        return QMessageBox::Ok;
    default:
        return QMessageBox::Ok | QMessageBox::Cancel;
    }
}

} // namespace

Answer askUser(Question question, const QString& mode, QWidget* parent)
{
    const bool isLoad = question == Question::LoadDefaults;
    const bool isChoice = question == Question::RowOrColumnOff;
    const QPointer<QMessageBox> box
        = new QMessageBox(isLoad || isChoice ? QMessageBox::Question : QMessageBox::Information,
                          titleOf(question), textOf(question, mode), buttonsOf(question), parent);
    const QAbstractButton* accepting = box->button(isLoad ? QMessageBox::Yes : QMessageBox::Ok);
    const QAbstractButton* column = nullptr;
    if (isChoice) {
        accepting = box->addButton(Text::tr("Row"), QMessageBox::YesRole);
        column = box->addButton(Text::tr("Column"), QMessageBox::NoRole);
        box->setEscapeButton(box->addButton(Text::tr("Cancel"), QMessageBox::RejectRole));
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
