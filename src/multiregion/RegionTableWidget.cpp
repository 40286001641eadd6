#include "multiregion/RegionTableWidget.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "multiregion/MultiROIWidget.h"
#include "multiregion/rules/ConstraintGroups.h"
#include "multiregion/rules/TableConstraints.h"
#include "sensor/Span.h"

namespace Name = FeatureNames;

RegionTableWidget::RegionTableWidget(int regionNo, MultiROIWidget* page,
                                     const QStringList& features, QWidget* parent)
    : FeaturesTableWidget(features, page->tableManager(), parent)
    , m_regionNo(regionNo)
    , m_features(features)
{
}

QStringList RegionTableWidget::findFeatures(FeatureManager& camera,
                                            std::unique_ptr<FeatureManager>& manager)
{
    const QString category = QStringLiteral("/ImageFormatControl/MultipleRegion");
    const auto wrappers = FeatureManager::Wrappers::create();
    QStringList features;
    for (const ZebFeatureWrapperPtr& wrapper : qAsConst(*camera.features())) {
        FeatureReader reader(wrapper, {}, camera.link(), true);
        const QString name = reader.text(&ZebFeatureWrapper::GetName);
        const bool isListed = !name.contains(QLatin1String("Selector"))
            && reader.text(&ZebFeatureWrapper::GetCategory) == category;
        if (isListed)
            features << name;
        if (isListed || Name::subRegion.contains(name))
            wrappers->append(wrapper);
    }
    manager = std::make_unique<FeatureManager>(wrappers, camera.link());
    for (const QString& older : {Name::offsetX, Name::width}) {
        if (!camera.HasFeature(QStringLiteral("SubRegion") + older) && camera.HasFeature(older)
            && !features.contains(older))
            features << older;
    }
    return features;
}

void RegionTableWidget::refresh()
{
    updateFeatures(m_features);
    // An offset's bounds depend on a size, which may be in a later row.
    applyRanges(m_constrainedFeatures);
}

void RegionTableWidget::show(bool isOn, const QRect& geometry)
{
    showValue(Name::subRegionMode, isOn ? "On" : "Off");
    for (const QString& name : m_features) {
        const auto axis = axisOf(name);
        if (!axis)
            continue;
        const Span<int> span = spanOf(geometry, *axis);
        const std::int64_t number = isOffset(name) ? span.start : span.length;
        const bool isFloat = std::holds_alternative<double>(featureInfo(rowOf(name)).value);
        showValue(name, isFloat ? FeatureValue(static_cast<double>(number)) : number);
    }
    applyRanges(m_constrainedFeatures);
}

void RegionTableWidget::onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                      const QVector<int>& roles)
{
    const QVariant record = topLeft.siblingAtColumn(ValueColumn).data(Qt::UserRole);
    // No role stands for all of them.
    const QVector<int> changed = roles.isEmpty() ? QVector<int>{Qt::DisplayRole} : roles;
    if (isEdit(changed) && !recordIn(record))
        emit loggingMessage(ZebViewerLogMultiRegion,
                            tr("tblFeatures.data(%1) cannot be converted to FeatureInfo: %2")
                                .arg(QString::number(topLeft.row()), record.toString()));
    else
        FeaturesTableWidget::onDataChanged(topLeft, bottomRight, changed);
}

void RegionTableWidget::addConstraints(int regionNo, QStringList features)
{
    if (regionNo != m_regionNo)
        return;
    const QStringList before = m_constrainedFeatures;
    if (features.isEmpty())
        m_constrainedFeatures.clear();
    const auto isMissing = [&](const QString& feature) {
        return features.contains(feature) && !manager()->HasFeature(feature);
    };
    if (isMissing(Name::subRegionOffsetX))
        features << Name::offsetX;
    if (isMissing(Name::subRegionWidth)) {
        features.removeAll(Name::subRegionWidth);
        features << Name::width;
    }
    m_constrainedFeatures += features;
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
    applyRange(info);
    return info;
}

void RegionTableWidget::save(const FeatureInfo& info, const QVariant& value)
{
    const QString name = QString::fromStdString(info.name);
    emit saveSubRegionFeatureToCamera(
        m_regionNo, masterRegion(m_regionNo, name, m_constrainedFeatures), name, value);
}

/// Gives the record the bounds of its range, or those of the camera where it has none.
void RegionTableWidget::applyRange(FeatureInfo& info) const
{
    info.minimum = info.cameraMinimum;
    info.maximum = info.cameraMaximum;
    const QString name = QString::fromStdString(info.name);
    if (m_range.isNull() || !m_constrainedFeatures.contains(name))
        return;
    const ConstrainedRange range = constrainedRange(name, m_range, presentValue(counterparts(name)),
                                                    toInteger(info.increment).value_or(1));
    if (range.minimum)
        info.minimum = *range.minimum;
    if (range.maximum)
        info.maximum = *range.maximum;
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

/// Of the first name that the table has a row of; empty while the camera has told no value.
std::optional<std::int64_t> RegionTableWidget::presentValue(const QStringList& names) const
{
    for (const QString& name : names) {
        if (const int row = rowOf(name); row >= 0) {
            const FeatureInfo info = featureInfo(row);
            return info.isKnown ? toInteger(info.value) : std::nullopt;
        }
    }
    return std::nullopt;
}
