#include "features/Reading.h"

#include "features/FeatureManager.h"
#include "features/FeatureWriting.h"

Reading<double> readNumber(FeatureManager& manager, const QString& name,
                           const QString& alternative1, const QString& alternative2)
{
    return manager.Read(name, alternative1, alternative2).number();
}

Reading<double> readFieldNumber(FeatureManager& manager, const QString& name,
                                const QString& alternative1, const QString& alternative2)
{
    return manager.Read(name, alternative1, alternative2).fieldNumber();
}

std::optional<double> readValue(FeatureManager& manager, const QString& name,
                                const QString& alternative1, const QString& alternative2)
{
    return manager.Read(name, alternative1, alternative2).value();
}

Reading<QString> readText(FeatureManager& manager, const QString& name, const QString& alternative)
{
    return manager.Read(name, alternative).textReading();
}

std::optional<double> writeNumber(FeatureManager& manager, const QString& name, double value)
{
    FeatureReader reader = manager.Read(name);
    return reader ? FeatureWriting::writeNumber(reader, name, value).value : std::nullopt;
}
