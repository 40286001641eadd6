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

/// The button that closed the box; null when the box went with its parent.
QAbstractButton* run(QPointer<QMessageBox> box)
{
    box->exec();
    if (!box)
        return nullptr;
    box->deleteLater();
    return box->clickedButton();
}

Answer askForPart(QWidget* parent)
{
    auto* box = new QMessageBox(
        QMessageBox::Question, Text::tr("Deactivate Region"),
        Text::tr("Currently selected Arrangement Mode 'Tile' requires deactivation of either a row "
                 "or a column.\nWhat would you deactivate?"),
        QMessageBox::NoButton, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    QAbstractButton* const row = box->addButton(Text::tr("Row"), QMessageBox::YesRole);
    QAbstractButton* const column = box->addButton(Text::tr("Column"), QMessageBox::NoRole);
    QPushButton* const cancel = box->addButton(Text::tr("Cancel"), QMessageBox::RejectRole);
    box->setEscapeButton(cancel);

    QAbstractButton* const clicked = run(box);
    if (!clicked)
        return Answer::None;
    if (clicked == row)
        return Answer::Row;
    return clicked == column ? Answer::Column : Answer::Rejected;
}

Answer confirm(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
               QWidget* parent)
{
    const bool isQuestion = buttons.testFlag(QMessageBox::No);
    auto* box = new QMessageBox(isQuestion ? QMessageBox::Question : QMessageBox::Information,
                                title, text, buttons, parent);
    QAbstractButton* const accepting = box->button(isQuestion ? QMessageBox::Yes : QMessageBox::Ok);
    QAbstractButton* const clicked = run(box);
    if (!clicked)
        return Answer::None;
    return clicked == accepting ? Answer::Accepted : Answer::Rejected;
}

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
    case Question::ColumnOn:
    case Question::RowOn:
        return Text::tr("Arrangement Mode '%1' requires activation of the whole %2.")
            .arg(mode, part);
    default:
        return Text::tr("Overwrite the current region settings?");
    }
}

} // namespace

Answer askUser(Question question, const QString& mode, QWidget* parent)
{
    const QString text = textOf(question, mode);
    switch (question) {
    case Question::None:
        return Answer::Accepted;
    case Question::RowOrColumnOff:
        return askForPart(parent);
    case Question::LoadDefaults:
        return confirm(Text::tr("Load Default Configuration"), text,
                       QMessageBox::Yes | QMessageBox::No, parent);
    case Question::ColumnOn:
    case Question::RowOn:
        return confirm(Text::tr("Activate Region"), text, QMessageBox::Ok, parent);
    default:
        return confirm(Text::tr("Deactivate Region"), text, QMessageBox::Ok | QMessageBox::Cancel,
                       parent);
    }
}
