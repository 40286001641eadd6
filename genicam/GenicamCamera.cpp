#include "GenicamCamera.h"

#include "GenicamFeature.h"
#include "ImageStream.h"

#include <algorithm>

namespace genicam {

namespace {

struct ListedNode
{
    ArvGcFeatureNode* node;
    std::string category;
};

/// The features below a category, with the path of theirs; each stands where it comes first.
void collect(ArvGcFeatureNode* category, const std::string& path,
             std::set<ArvGcFeatureNode*>& known, std::vector<ListedNode>& list)
{
    for (const auto& [type, node] : linksOf(category)) {
        if (type != ARV_GC_PROPERTY_NODE_TYPE_P_FEATURE || !known.insert(node).second)
            continue;
        if (ARV_IS_GC_CATEGORY(node))
            collect(node, path + "/" + arv_gc_feature_node_get_name(node), known, list);
        else if (typeOf(node) != ZebFeatureDataUnknown)
            list.push_back({node, path});
    }
}

} // namespace

GenicamCamera::GenicamCamera(ArvDevice* device, const Options& options)
    : m_link(std::make_shared<DeviceLink>(device))
    , m_watch(std::make_shared<ChangeWatch>(m_link, options.onGone))
{
    DependencyGraph graph;
    m_link->perform(false, [&](GError**) {
        readFeatures(options);
        std::vector<ArvGcFeatureNode*> nodes;
        for (const auto& feature : m_features)
            nodes.push_back(feature->node());
        graph = DependencyGraph(nodes);
        return ZebErrorSuccess;
    });
    m_watch->start(m_features, std::move(graph));
}

GenicamCamera::~GenicamCamera()
{
    stopStream();
    m_watch->stop();
    m_link->close();
}

void GenicamCamera::readFeatures(const Options& options)
{
    std::vector<ListedNode> list;
    std::set<ArvGcFeatureNode*> known;
    if (ArvGcNode* const root = m_link->node("Root"); ARV_IS_GC_CATEGORY(root))
        collect(ARV_GC_FEATURE_NODE(root), "", known, list);

    std::map<ArvGcFeatureNode*, std::weak_ptr<GenicamFeature>> byNode;
    for (const auto& [node, category] : list) {
        const bool isVendor
            = g_strcmp0(arv_gc_feature_node_get_name(node), "DeviceVendorName") == 0;
        m_features.push_back(std::make_shared<GenicamFeature>(
            node,
            GenicamFeature::Place{m_features.size(), category.empty() ? "/" : category,
                                  isVendor ? options.vendorPrefix : std::string()},
            m_link, m_watch));
        byNode[node] = m_features.back();
    }
    for (const auto& feature : m_features) {
        std::vector<std::weak_ptr<GenicamFeature>> selected;
        for (const auto& [type, node] : linksOf(feature->node())) {
            if (type == ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED && byNode.count(node) > 0)
                selected.push_back(byNode[node]);
        }
        feature->setSelected(std::move(selected));
    }
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

std::string GenicamCamera::startStream(std::function<void()> onFrame)
{
    stopStream();
    auto stream = std::make_unique<ImageStream>(m_link, std::move(onFrame));
    std::string reason = stream->start();
    announceStream();
    if (reason.empty())
        m_stream = std::move(stream);
    return reason;
}

void GenicamCamera::stopStream()
{
    if (!m_stream)
        return;
    m_stream.reset();
    announceStream();
}

// A streaming camera locks what decides the size of its pictures.
void GenicamCamera::announceStream()
{
    DependencyGraph::Places touched;
    m_link->perform(false, [&](GError**) {
        if (ArvGcNode* const locked = m_link->node("TLParamsLocked");
            ARV_IS_GC_FEATURE_NODE(locked))
            touched = m_watch->graph().touchedBy(ARV_GC_FEATURE_NODE(locked));
        return ZebErrorSuccess;
    });
    m_watch->written(touched);
}

std::optional<Frame> GenicamCamera::takeFrame()
{
    return m_stream ? m_stream->take() : std::nullopt;
}

double GenicamCamera::framesPerSecond() const
{
    return m_stream ? m_stream->figures().framesPerSecond : 0.0;
}

std::uint64_t GenicamCamera::lostFrames() const
{
    return m_stream ? m_stream->figures().lostFrames : 0;
}

} // namespace genicam
