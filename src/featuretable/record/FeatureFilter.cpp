#include "featuretable/record/FeatureFilter.h"

bool matchesFilter(const FeatureInfo& info, const QString& filter)
{
    const QString wanted = filter.trimmed();
    if (wanted.isEmpty())
        return true;
    const auto contains = [&wanted](const std::string& text) {
        return QString::fromStdString(text).contains(wanted, Qt::CaseInsensitive);
    };
    return contains(info.name) || contains(info.displayName) || contains(info.description);
}
