#include "features/FeatureWrapping.h"

#include <deque>

FeatureManager::Wrappers wrapFeatures(const QVector<ZebCPP::FeaturePtr>& features)
{
    auto wrappers = FeatureManager::Wrappers::create();
    wrappers->reserve(features.size());
    const auto store = std::make_shared<std::deque<ZebFeatureWrapper>>();
    for (const ZebCPP::FeaturePtr& feature : features)
        wrappers->append(ZebFeatureWrapperPtr(store, &store->emplace_back(feature)));
    return wrappers;
}
