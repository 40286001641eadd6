#pragma once

#include "featuretable/FeaturesTableWidget.h"

#include <QHash>
#include <QRect>

#include <optional>

struct TableGeometry;
class MultiROIWidget;

/// The feature table of one region. What the user edits goes to the page together with the region's
/// number; features that the region shares are offered only as far as the region's neighbours
/// allow.
class RegionTableWidget : public FeaturesTableWidget
{
    Q_OBJECT

public:
    RegionTableWidget(int regionNo, MultiROIWidget* page, const QStringList& features,
                      QWidget* parent);

    /// Reads all rows from the camera, which has the region selected.
    void refresh();

signals:
    /// @param masterRegion the region that the feature is shared from, -1 for none
    void saveSubRegionFeatureToCamera(int regionNo, int masterRegion, QString featureName,
                                      QVariant value);

public slots:
    void onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                       const QVector<int>& roles) override;
    /// An empty list withdraws all constraints.
    void addConstraints(int regionNo, QStringList features);
    /// @param geometry the area that the region may occupy, sensor pixels
    void onRegionRangeChanged(int regionNo, QRect geometry);

protected:
    FeatureInfo readFeature(const QString& name) override;

private:
    /// As the camera reported them.
    struct Bounds
    {
        std::optional<FeatureValue> minimum;
        std::optional<FeatureValue> maximum;
    };

    void applyRange(FeatureInfo& info);
    void applyRanges(const QStringList& features);
    TableGeometry presentGeometry() const;
    qint64 presentValue(const QString& name, const QString& olderName) const;

    const int m_regionNo;
    const QStringList m_features;
    QStringList m_constrainedFeatures;
    QRect m_range; ///< null until the first one arrives
    QHash<QString, Bounds> m_ownBounds;
};
