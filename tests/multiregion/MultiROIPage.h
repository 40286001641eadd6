#pragma once

#include "CameraPage.h"
#include "multiregion/MultiROIWidget.h"
#include "multiregion/RegionLabelWidget.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "widgets/RoundButton.h"

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QTabBar>
#include <QTableWidget>
#include <QtTest>

#include <utility>

/// Answers the message boxes that come up, each by a button's text and then by Escape, and notes
/// what they say.
class Answers : public QObject
{
public:
    /// @param underBox done once while a box is open
    explicit Answers(const QStringList& answers, const std::function<void()>& underBox = {})
        : buttons(answers)
        , m_underBox(underBox)
    {
        startTimer(5);
    }

    QStringList buttons;
    QStringList texts;

protected:
    void timerEvent(QTimerEvent*) override
    {
        const QPointer<QMessageBox> box
            = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        texts << box->text();
        if (m_underBox)
            std::exchange(m_underBox, {})();
        if (!box)
            return;
        const QString wanted = buttons.isEmpty() ? "Escape" : buttons.takeFirst();
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().remove('&') != wanted)
                continue;
            button->click();
            return;
        }
        QTest::keyClick(box, Qt::Key_Escape);
    }

private:
    std::function<void()> m_underBox;
};

/// The page of several regions, shown.
struct MultiROIPage : CameraPage<MultiROIWidget>
{
    explicit MultiROIPage(const QByteArray& model, const QByteArray& mode = "Vertical")
        : CameraPage(model,
                     [&](sim::Camera& own) {
                         own.writeAsOtherClient("MultipleRegionArrangement", mode.toStdString());
                     })
        , label(find<MultiRubberBandLabel>())
        , tabs(find<QTabWidget>("tabRegions"))
    {
        QObject::connect(page.get(), &MultiROIWidget::loggingMessage, page.get(),
                         [this](ZebViewerLogCategory, const QString& line) { log << line; });
        page->resize(700, 806);
        page->show();
        settle();
        camera->journal().clear();
    }

    void settle() const
    {
        camera->flushNotifications();
        for (int i = 0; i < 2; ++i) {
            QCoreApplication::processEvents();
            page->updateTimer();
        }
    }

    void loadDefaults() const
    {
        Answers answers({"Yes"});
        page->loadDefaultConfiguration();
        settle();
    }

    void writeAsOther(const char* name, const QByteArray& value) const
    {
        camera->writeAsOtherClient(name, value.toStdString());
    }

    void switchAsOther(int region, const QByteArray& mode) const
    {
        writeAsOther("SubRegionSelector", "Region" + QByteArray::number(region));
        writeAsOther("SubRegionMode", mode);
    }

    void choose(const QString& mode) const { find<QComboBox>()->setCurrentText(mode); }
    void switchOff(int region) const { page->setFeatureValue(region, -1, "SubRegionMode", "Off"); }
    RoundButton* button(int region) const
    {
        return qobject_cast<RoundButton*>(tabs->tabBar()->tabButton(region, QTabBar::LeftSide));
    }

    bool isOn(int region) const { return camera->feature("SubRegionMode").textAt(region) == "On"; }
    QString active() const { return active(tabs->count()); }
    QString active(int count) const
    {
        QString result;
        for (int region = 0; region < count; ++region)
            result += isOn(region) ? QString::number(region) : QString();
        return result;
    }

    QRect onCamera(int region) const
    {
        const auto at = [this, region](const std::string& feature) {
            const std::string name = "SubRegion" + feature;
            return int(camera->feature(camera->has(name) ? name : feature).integerAt(region));
        };
        return {at("OffsetX"), at("OffsetY"), at("Width"), at("Height")};
    }

    QPoint onLabel(const QPoint& point) const { return point * label->shownSize().height() / 1944; }

    /// The value cell of a feature in a region's table; null without one.
    QTableWidgetItem* cell(int region, const QString& feature) const
    {
        const auto* table = tabs->widget(region)->findChild<QTableWidget*>("tblFeatures");
        for (int row = 0; row < table->rowCount(); ++row) {
            if (table->item(row, 0)->data(Qt::UserRole).toString() == feature)
                return table->item(row, 1);
        }
        return nullptr;
    }

    FeatureInfo record(int region, const QString& feature) const
    {
        return cell(region, feature)->data(Qt::UserRole).value<FeatureInfo>();
    }

    /// The control of an editor that is opened in the current region's table.
    template <typename Control> Control* edit(const QString& feature, const QString& name) const
    {
        QTableWidgetItem* const own = cell(tabs->currentIndex(), feature);
        own->tableWidget()->setCurrentItem(own);
        QTest::keyClick(own->tableWidget(), Qt::Key_F2);
        return own->tableWidget()->findChild<Control*>(name);
    }

    QRect inTable(int region) const
    {
        const auto value = [this, region](const char* name) {
            const QTableWidgetItem* own = cell(region, QString("SubRegion") + name);
            return (own ? own : cell(region, name))->data(Qt::DisplayRole).toInt();
        };
        return {value("OffsetX"), value("OffsetY"), value("Width"), value("Height")};
    }

    /// What contradicts the camera, empty when all is at rest.
    QString contradiction() const
    {
        const auto labels = page->findChildren<RegionLabelWidget*>();
        for (int region = 0; region < tabs->count(); ++region) {
            if (label->isRegionShown(region) != isOn(region))
                return QString("band of %1").arg(region);
            if (button(region)->isChecked() != isOn(region))
                return QString("button of %1").arg(region);
            const QRect rect = onCamera(region);
            if ((isOn(region) || region == tabs->currentIndex()) && inTable(region) != rect)
                return QString("table of %1").arg(region);
            if (!isOn(region))
                continue;
            if (label->regionRectangle(region) != rect)
                return QString("label of %1").arg(region);
            const auto* const size = labels[region]->findChild<QLabel*>("lbl_Size");
            if (size->text()
                != QString::asprintf("(%4d, %4d)\n%4d x %4d", rect.x(), rect.y(), rect.width(),
                                     rect.height()))
                return QString("region label of %1: %2").arg(region).arg(size->text());
            if (!size->styleSheet().contains(label->shownColor(region).name()))
                return QString("color of %1").arg(region);
        }
        return {};
    }

    MultiRubberBandLabel* label;
    QTabWidget* tabs;
    QStringList log;
};
