#pragma once

#include "FeatureDescription.h"

#include <memory>

namespace sim {

class Device;

/// Direct sight of one feature, past the SDK: no failure strikes here and the journal stays as it
/// is.
class FeatureProbe
{
public:
    FeatureProbe(std::shared_ptr<Device> device, std::size_t index);

    Value value() const;
    Value valueAt(std::int64_t entry) const; ///< of per-entry features, by the selector's number
    std::int64_t integer() const { return value().toInteger(); }
    std::int64_t integerAt(std::int64_t entry) const { return valueAt(entry).toInteger(); }
    double number() const { return value().toNumber(); }
    bool isOn() const { return value().toBoolean(); }
    std::string text() const { return value().toText(); }
    std::string textAt(std::int64_t entry) const { return valueAt(entry).toText(); }

    IntegerRange range() const;
    FloatRange realRange() const;
    bool isReadable() const;
    bool isWritable() const;
    bool isAvailable(const std::string& entry) const;
    FeatureDescription description() const;

    std::size_t observerCount() const;
    ZebCPP::FeaturePtr pointer() const;

private:
    template <typename Read> auto read(Read&& read) const;

    std::shared_ptr<Device> m_device;
    std::size_t m_index;
};

} // namespace sim
