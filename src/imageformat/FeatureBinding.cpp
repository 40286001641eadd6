#include "imageformat/FeatureBinding.h"

#include <QWidget>

#include <algorithm>
#include <iterator>

namespace {

constexpr int prefixLength = 3;

bool isBoundTo(const QString& featureName, const QString& objectName)
{
    const auto isLowerCase
        = [](QChar letter) { return letter >= QLatin1Char('a') && letter <= QLatin1Char('z'); };
    return objectName.size() == prefixLength + featureName.size()
        && objectName.endsWith(featureName)
        && std::all_of(objectName.begin(), objectName.begin() + prefixLength, isLowerCase);
}

} // namespace

QString boundFeatureName(const QString& objectName)
{
    return objectName.mid(prefixLength);
}

QList<QWidget*> widgetsBoundTo(const QString& featureName, const QList<QWidget*>& widgets)
{
    QList<QWidget*> bound;
    if (featureName.isEmpty())
        return bound;
    std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(bound),
                 [&featureName](const QWidget* widget) {
                     return isBoundTo(featureName, widget->objectName());
                 });
    return bound;
}
