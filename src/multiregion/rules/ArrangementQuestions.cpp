#include "multiregion/rules/ArrangementQuestions.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("MultiROIWidget", source);
}

QString partName(TilePart part)
{
    return part == TilePart::Column ? text(QT_TRANSLATE_NOOP("MultiROIWidget", "column"))
                                    : text(QT_TRANSLATE_NOOP("MultiROIWidget", "row"));
}

/// The button that closed the box; null when the box went with its parent.
QAbstractButton* run(QPointer<QMessageBox> box)
{
    box->exec();
    if (!box)
        return nullptr;
    box->deleteLater();
    return box->clickedButton();
}

bool accepts(QMessageBox* box, QMessageBox::StandardButton button)
{
    QAbstractButton* const accepting = box->button(button);
    QAbstractButton* const clicked = run(box);
    return clicked && clicked == accepting;
}

} // namespace

bool confirmDefaults(QWidget* parent)
{
    return accepts(
        new QMessageBox(
            QMessageBox::Question,
            text(QT_TRANSLATE_NOOP("MultiROIWidget", "Load Default Configuration")),
            text(QT_TRANSLATE_NOOP("MultiROIWidget", "Overwrite the current region settings?")),
            QMessageBox::Yes | QMessageBox::No, parent),
        QMessageBox::Yes);
}

bool confirmWholePartOff(QWidget* parent, const QString& mode, TilePart part)
{
    const QString question = text(QT_TRANSLATE_NOOP(
        "MultiROIWidget",
        "Currently selected Arrangement Mode '%1' requires deactivation of the whole %2."));
    return accepts(new QMessageBox(QMessageBox::Information,
                                   text(QT_TRANSLATE_NOOP("MultiROIWidget", "Deactivate Region")),
                                   question.arg(mode, partName(part)),
                                   QMessageBox::Ok | QMessageBox::Cancel, parent),
                   QMessageBox::Ok);
}

bool confirmSubsequentOff(QWidget* parent, const QString& mode)
{
    const QString question = text(QT_TRANSLATE_NOOP(
        "MultiROIWidget",
        "Currently selected Arrangement Mode '%1' requires deactivation of all subsequent "
        "regions."));
    return accepts(new QMessageBox(QMessageBox::Information,
                                   text(QT_TRANSLATE_NOOP("MultiROIWidget", "Deactivate Region")),
                                   question.arg(mode), QMessageBox::Ok | QMessageBox::Cancel,
                                   parent),
                   QMessageBox::Ok);
}

TileAnswer askForTilePart(QWidget* parent)
{
    auto* box = new QMessageBox(
        QMessageBox::Question, text(QT_TRANSLATE_NOOP("MultiROIWidget", "Deactivate Region")),
        text(QT_TRANSLATE_NOOP("MultiROIWidget",
                               "Currently selected Arrangement Mode 'Tile' requires deactivation "
                               "of either a row or a column.\nWhat would you deactivate?")),
        QMessageBox::NoButton, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    QAbstractButton* const row
        = box->addButton(text(QT_TRANSLATE_NOOP("MultiROIWidget", "Row")), QMessageBox::YesRole);
    QAbstractButton* const column
        = box->addButton(text(QT_TRANSLATE_NOOP("MultiROIWidget", "Column")), QMessageBox::NoRole);
    QPushButton* const cancel = box->addButton(text(QT_TRANSLATE_NOOP("MultiROIWidget", "Cancel")),
                                               QMessageBox::RejectRole);
    box->setEscapeButton(cancel);

    QAbstractButton* const clicked = run(box);
    if (!clicked)
        return TileAnswer::None;
    if (clicked == row)
        return TileAnswer::Row;
    return clicked == column ? TileAnswer::Column : TileAnswer::Cancel;
}

bool tellWholePartOn(QWidget* parent, const QString& mode, TilePart part)
{
    const QString message = text(QT_TRANSLATE_NOOP(
        "MultiROIWidget", "Arrangement Mode '%1' requires activation of the whole %2."));
    return accepts(new QMessageBox(QMessageBox::Information,
                                   text(QT_TRANSLATE_NOOP("MultiROIWidget", "Activate Region")),
                                   message.arg(mode, partName(part)), QMessageBox::Ok, parent),
                   QMessageBox::Ok);
}
