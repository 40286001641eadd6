#pragma once

#include "featuretable/FeaturesTableWidget.h"

#include <QRect>

#include <memory>
#include <optional>

class MultiROIWidget;

/// The feature table of one region. Edits go to the page with the region's number; shared features
/// are offered only as far as the region's neighbours allow.
class RegionTableWidget : public FeaturesTableWidget
{
    Q_OBJECT

public:
    RegionTableWidget(int regionNo, MultiROIWidget* page, const QStringList& features,
                      QWidget* parent);

    /// What the camera tells of its regions; older cameras keep some of it elsewhere.
    /// @param manager of no other features: a table looks each of its rows up by walking its list
    static QStringList findFeatures(FeatureManager& camera,
                                    std::unique_ptr<FeatureManager>& manager);

    /// Reads all rows from the camera, which has the region selected.
    void refresh();
    /// What the camera told of the region while another table was open.
    void show(bool isOn, const QRect& geometry);

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
    /// Leaves the writing to the page, which reads back what came of it.
    void save(const FeatureInfo& info, const QVariant& value) override;

private:
    void applyRange(FeatureInfo& info) const;
    void applyRanges(const QStringList& features);
    std::optional<std::int64_t> presentValue(const QStringList& names) const;

    const int m_regionNo;
    const QStringList m_features;
    QStringList m_constrainedFeatures;
    QRect m_range; ///< null until the first one arrives
};
