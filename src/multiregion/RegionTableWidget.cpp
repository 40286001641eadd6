#include "multiregion/RegionTableWidget.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "multiregion/MultiROIWidget.h"
#include "multiregion/rules/TableConstraints.h"

#include <QPointer>

namespace Name = FeatureNames;

RegionTableWidget::RegionTableWidget(int regionNo, MultiROIWidget* page,
                                     const QStringList& features, QWidget* parent)
    : FeaturesTableWidget(features, page->tableManager(), parent)
    , m_regionNo(regionNo)
    , m_features(features)
{
}

void RegionTableWidget::refresh()
{
    updateFeatures(m_features);
    // An offset's bounds depend on a size, which may be in a later row.
    applyRanges(m_constrainedFeatures);
}

void RegionTableWidget::onDataChanged(const QModelIndex& topLeft, const QModelIndex&,
                                      const QVector<int>& roles)
{
    if (!isEdit(roles))
        return;
    const QModelIndex cell = topLeft.siblingAtColumn(ValueColumn);
    const QVariant record = cell.data(Qt::UserRole);
    if (!record.canConvert<FeatureInfo>()) {
        emit loggingMessage(ZebViewerLogMultiRegion,
                            tr("tblFeatures.data(%1) cannot be converted to FeatureInfo: %2")
                                .arg(QString::number(topLeft.row()), record.toString()));
        return;
    }
    const QString name = QString::fromStdString(record.value<FeatureInfo>().name);
    const QPointer<RegionTableWidget> self(this);
    emit saveSubRegionFeatureToCamera(m_regionNo,
                                      masterRegion(m_regionNo, name, m_constrainedFeatures), name,
                                      cell.data(Qt::DisplayRole));
    if (!self)
        return;
    forgetEditedFeature();
    emit cellEditorActive(false);
}

void RegionTableWidget::addConstraints(int regionNo, QStringList features)
{
    if (regionNo != m_regionNo)
        return;
    const QStringList before = m_constrainedFeatures;
    if (features.isEmpty())
        m_constrainedFeatures.clear();
    for (const QString& feature : qAsConst(features)) {
        if (feature == Name::subRegionWidth && !manager()->HasFeature(Name::subRegionWidth)) {
            m_constrainedFeatures << Name::width;
            continue;
        }
        m_constrainedFeatures << feature;
        if (feature == Name::subRegionOffsetX && !manager()->HasFeature(Name::subRegionOffsetX))
            m_constrainedFeatures << Name::offsetX;
    }
    m_constrainedFeatures.removeDuplicates();
    applyRanges(before + m_constrainedFeatures);
}

void RegionTableWidget::onRegionRangeChanged(int regionNo, QRect geometry)
{
    if (regionNo != m_regionNo)
        return;
    m_range = geometry;
    applyRanges(m_constrainedFeatures);
}

FeatureInfo RegionTableWidget::readFeature(const QString& name)
{
    FeatureInfo info = FeaturesTableWidget::readFeature(name);
    m_ownBounds.insert(name, {info.minimum, info.maximum});
    applyRange(info);
    return info;
}

/// Gives the record the bounds of its range, or those of the camera where it has none.
void RegionTableWidget::applyRange(FeatureInfo& info)
{
    const QString name = QString::fromStdString(info.name);
    if (!m_ownBounds.contains(name))
        m_ownBounds.insert(name, {info.minimum, info.maximum});
    const Bounds bounds = m_ownBounds.value(name);
    info.minimum = bounds.minimum;
    info.maximum = bounds.maximum;
    if (m_range.isNull() || !m_constrainedFeatures.contains(name))
        return;
    const ConstrainedRange range
        = constrainedRange(name, m_range, presentGeometry(), toInteger(info.increment).value_or(0));
    if (range.minimum != -1)
        info.minimum = FeatureValue(std::int64_t{range.minimum});
    if (range.maximum != -1)
        info.maximum = FeatureValue(std::int64_t{range.maximum});
}

void RegionTableWidget::applyRanges(const QStringList& features)
{
    for (const QString& name : features) {
        const int row = rowOf(name);
        if (row < 0)
            continue;
        FeatureInfo info = featureInfo(row);
        applyRange(info);
        storeFeatureInfo(row, info);
    }
}

TableGeometry RegionTableWidget::presentGeometry() const
{
    return {presentValue(Name::subRegionOffsetX, Name::offsetX),
            presentValue(Name::subRegionOffsetY, {}),
            presentValue(Name::subRegionWidth, Name::width),
            presentValue(Name::subRegionHeight, {})};
}

/// 0 for what the table does not show.
qint64 RegionTableWidget::presentValue(const QString& name, const QString& olderName) const
{
    const int row = rowOf(name) >= 0 ? rowOf(name) : rowOf(olderName);
    return row < 0 ? 0 : toInteger(featureInfo(row).value).value_or(0);
}
