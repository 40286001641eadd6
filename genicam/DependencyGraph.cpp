#include "DependencyGraph.h"

namespace genicam {

namespace {

using Nodes = std::set<ArvGcFeatureNode*>;
using Selectors = std::map<ArvGcFeatureNode*, Nodes>;

bool isDependency(ArvGcPropertyNodeType type)
{
    return type != ARV_GC_PROPERTY_NODE_TYPE_P_FEATURE && type != ARV_GC_PROPERTY_NODE_TYPE_P_PORT
        && type != ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED;
}

/// All that @p node depends on, itself included.
void collect(ArvGcFeatureNode* node, const Selectors& selectors, Nodes& nodes)
{
    if (!nodes.insert(node).second)
        return;
    for (const auto& [type, linked] : linksOf(node)) {
        if (isDependency(type))
            collect(linked, selectors, nodes);
    }
    for (const Entry& entry : entriesOf(node))
        collect(entry.node, selectors, nodes);
    if (const auto found = selectors.find(node); found != selectors.end()) {
        for (ArvGcFeatureNode* selector : found->second)
            collect(selector, selectors, nodes);
    }
    // What is common to the entries of a register stands in the register.
    ArvDomNode* const parent = arv_dom_node_get_parent_node(ARV_DOM_NODE(node));
    if (ARV_IS_GC_STRUCT_ENTRY_NODE(node) && ARV_IS_GC_FEATURE_NODE(parent))
        collect(ARV_GC_FEATURE_NODE(parent), selectors, nodes);
}

/// The nodes that a write to @p node goes through.
void collectWritten(ArvGcFeatureNode* node, Nodes& nodes)
{
    if (!nodes.insert(node).second)
        return;
    for (const auto& [type, linked] : linksOf(node)) {
        if (type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE)
            collectWritten(linked, nodes);
    }
}

} // namespace

DependencyGraph::DependencyGraph(const std::vector<ArvGcFeatureNode*>& features)
{
    Selectors selectors;
    for (ArvGcFeatureNode* feature : features) {
        for (const auto& [type, linked] : linksOf(feature)) {
            if (type == ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED)
                selectors[linked].insert(feature);
        }
    }
    for (std::size_t place = 0; place < features.size(); ++place) {
        Nodes nodes;
        collect(features[place], selectors, nodes);
        for (ArvGcFeatureNode* node : nodes)
            m_dependents[node].insert(place);
    }
    for (ArvGcFeatureNode* feature : features)
        m_touched.push_back(touchedBy(feature));
}

DependencyGraph::Places DependencyGraph::touchedBy(ArvGcFeatureNode* node) const
{
    Nodes written;
    collectWritten(node, written);
    Places touched;
    for (ArvGcFeatureNode* one : written) {
        if (const auto found = m_dependents.find(one); found != m_dependents.end())
            touched.insert(found->second.begin(), found->second.end());
    }
    return touched;
}

} // namespace genicam
