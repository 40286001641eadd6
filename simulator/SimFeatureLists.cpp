// What a feature answers in lists: entries, legal values, what it selects.

#include "SimFeatureCall.h"

#include "TwoCallAnswer.h"

namespace sim {

ZebErrorType SimFeature::GetValues(const char** values, std::uint32_t& count)
{
    return perform(Operation::GetValues, [&](Call& call) {
        call.isContinued = values != nullptr;
        m_listed = call.store.sharedDescription(m_index);
        if (m_listed->type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        std::vector<const char*> names;
        for (const EnumItem& entry : m_listed->entries)
            names.push_back(entry.name.c_str());
        return answerList(names, call.failure, values, count);
    });
}

ZebErrorType SimFeature::GetValues(std::int64_t* values, std::uint32_t& count)
{
    return perform(Operation::GetValues, [&](Call& call) {
        call.isContinued = values != nullptr;
        const FeatureDescription& feature = call.store.description(m_index);
        if (feature.type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        std::vector<std::int64_t> numbers;
        for (const EnumItem& entry : feature.entries)
            numbers.push_back(entry.value);
        return answerList(numbers, call.failure, values, count);
    });
}

ZebErrorType SimFeature::GetEntry(ZebCPP::EnumEntry& entry, const char* name)
{
    return perform(Operation::GetEntry, [&](Call& call) {
        if (!name || call.store.description(m_index).type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        if (!call.store.description(m_index).entry(name))
            return ZebErrorNotFound;
        entry = ZebCPP::EnumEntry();
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::GetEntries(ZebCPP::EnumEntry* entries, std::uint32_t& count)
{
    return perform(Operation::GetEntries, [&](Call& call) {
        call.isContinued = entries != nullptr;
        const FeatureDescription& feature = call.store.description(m_index);
        if (feature.type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        const std::vector<ZebCPP::EnumEntry> all(feature.entries.size());
        return answerList(all, call.failure, entries, count);
    });
}

ZebErrorType SimFeature::GetValidValueSet(std::int64_t* values, std::uint32_t bufferSize,
                                          std::uint32_t* setSize)
{
    return perform(Operation::GetValidValueSet, [&](Call& call) {
        call.isContinued = values != nullptr;
        const FeatureDescription& feature = call.store.description(m_index);
        if (feature.type != ZebFeatureDataInt || (!values && !setSize))
            return ZebErrorBadParameter;
        std::uint32_t count = bufferSize;
        const ZebErrorType result = answerList(feature.validValues, call.failure, values, count);
        if (setSize)
            *setSize = count;
        return result;
    });
}

ZebErrorType SimFeature::GetSelectedFeatures(ZebCPP::FeaturePtr* features, std::uint32_t& count)
{
    return perform(Operation::GetSelectedFeatures, [&](Call& call) {
        std::vector<ZebCPP::FeaturePtr> selected;
        for (const std::size_t index : call.store.selectedBy(m_index))
            selected.push_back(call.device.feature(index));
        return answerList(selected, call.failure, features, count);
    });
}

} // namespace sim
