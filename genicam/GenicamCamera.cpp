#include "GenicamCamera.h"

#include "GenicamFeature.h"
#include "ImageStream.h"

#include <algorithm>

namespace genicam {

namespace {

using NodeOfCategory = std::pair<ArvGcFeatureNode*, std::string>;

/// The features below a category; each stands where it comes first.
void collect(ArvGcFeatureNode* category, const std::string& path,
             std::set<ArvGcFeatureNode*>& known, std::vector<NodeOfCategory>& list)
{
    for (const auto& [type, node] : linksOf(category)) {
        if (type != ARV_GC_PROPERTY_NODE_TYPE_P_FEATURE || !known.insert(node).second)
            continue;
        if (ARV_IS_GC_CATEGORY(node))
            collect(node, path + "/" + textsOf(node)[Name], known, list);
        else if (typeOf(node) != ZebFeatureDataUnknown)
            list.emplace_back(node, path.empty() ? "/" : path);
    }
}

} // namespace

GenicamCamera::GenicamCamera(ArvDevice* device, const Options& options)
    : m_link(std::make_shared<DeviceLink>(device))
    , m_watch(std::make_shared<ChangeWatch>(m_link, options.onGone))
{
    std::vector<Places> touched;
    m_link->perform([&](GError**) {
        std::vector<NodeOfCategory> list;
        std::set<ArvGcFeatureNode*> known;
        if (ArvGcFeatureNode* const root = m_link->node("Root"))
            collect(root, "", known, list);
        std::vector<ArvGcFeatureNode*> nodes;
        for (const auto& [node, category] : list) {
            const bool isVendor = textsOf(node)[Name] == "DeviceVendorName";
            const std::string prefix = isVendor ? options.vendorPrefix : std::string();
            const GenicamFeature::Place place{nodes.size(), category, prefix};
            m_features.push_back(std::make_shared<GenicamFeature>(node, place, m_link, m_watch));
            nodes.push_back(node);
        }
        nodes.push_back(
            m_link->node("TLParamsLocked")); // behind the features, whether listed or not
        touched = touchedByWrites(nodes);
        return ZebErrorSuccess;
    });
    m_watch->start(m_features, std::move(touched));
}

GenicamCamera::~GenicamCamera()
{
    stopStream();
    m_watch->stop();
    m_link->close();
}

std::vector<ZebCPP::FeaturePtr> GenicamCamera::features() const
{
    return {m_features.begin(), m_features.end()};
}

std::shared_ptr<GenicamFeature> GenicamCamera::find(const std::string& name) const
{
    const auto found = std::find_if(m_features.begin(), m_features.end(),
                                    [&](const auto& one) { return one->name() == name; });
    return found == m_features.end() ? nullptr : *found;
}

ZebCPP::FeaturePtr GenicamCamera::feature(const std::string& name) const
{
    return find(name);
}

bool GenicamCamera::isGone() const
{
    return m_link->isLost();
}

std::size_t GenicamCamera::observerCount() const
{
    return m_watch->observers().count();
}

std::string GenicamCamera::readText(const std::string& name) const
{
    const auto feature = find(name);
    return feature ? feature->readText() : std::string();
}

ZebErrorType GenicamCamera::writeAsOtherClient(const std::string& name, const std::string& value)
{
    const auto feature = find(name);
    return feature ? feature->writeUnnoticed(value) : ZebErrorNotFound;
}

// A streaming camera locks what decides the size of its pictures.
std::string GenicamCamera::startStream(std::function<void()> onFrame)
{
    stopStream();
    auto stream = std::make_unique<ImageStream>(m_link, std::move(onFrame));
    std::string reason = stream->start();
    if (reason.empty())
        m_stream = std::move(stream);
    m_watch->written(m_features.size());
    return reason;
}

void GenicamCamera::stopStream()
{
    if (!m_stream)
        return;
    m_stream.reset();
    m_watch->written(m_features.size());
}

std::optional<Frame> GenicamCamera::takeFrame()
{
    return m_stream ? m_stream->take() : std::nullopt;
}

} // namespace genicam
