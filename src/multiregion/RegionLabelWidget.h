#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class RegionLabelWidget;
}

/// Number, position and size of one region in its colour; marks the region being edited.
class RegionLabelWidget : public QWidget
{
    Q_OBJECT

public:
    /// @param regionRect in sensor pixels
    RegionLabelWidget(int regionNo, const QRect& regionRect, const QColor& color, QWidget* parent);
    ~RegionLabelWidget() override;

    /// Sensor pixels. The mark of the region being edited goes with the old number.
    void setRegionGeometry(const QRect& regionRect);

    QSize minimumSizeHint() const override;

public slots:
    void updateColor(int regionNo, const QColor& color);
    void highlightIfSelected(int selectedRegion);

private:
    const int m_regionNo;
    std::unique_ptr<Ui::RegionLabelWidget> m_ui;
};
