#include "Dependencies.h"

#include <map>

namespace genicam {

namespace {

using Nodes = std::set<ArvGcFeatureNode*>;
using Selectors = std::map<ArvGcFeatureNode*, Nodes>;

/// All that @p node depends on, itself included.
void collect(ArvGcFeatureNode* node, const Selectors& selectors, Nodes& nodes)
{
    if (!node || !nodes.insert(node).second)
        return;
    for (const auto& [type, linked] : linksOf(node)) {
        if (type != ARV_GC_PROPERTY_NODE_TYPE_P_FEATURE && type != ARV_GC_PROPERTY_NODE_TYPE_P_PORT
            && type != ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED)
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
    if (!node || !nodes.insert(node).second)
        return;
    for (const auto& [type, linked] : linksOf(node)) {
        if (type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE
            || type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE_INDEXED)
            collectWritten(linked, nodes);
    }
}

} // namespace

std::vector<Places> touchedByWrites(const std::vector<ArvGcFeatureNode*>& nodes)
{
    Selectors selectors;
    for (ArvGcFeatureNode* node : nodes) {
        for (const auto& [type, linked] : linksOf(node)) {
            if (type == ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED)
                selectors[linked].insert(node);
        }
    }
    std::map<ArvGcFeatureNode*, Places> dependents;
    for (std::size_t place = 0; place < nodes.size(); ++place) {
        Nodes needed;
        collect(nodes[place], selectors, needed);
        for (ArvGcFeatureNode* one : needed)
            dependents[one].insert(place);
    }
    std::vector<Places> touched;
    for (ArvGcFeatureNode* node : nodes) {
        Nodes written;
        collectWritten(node, written);
        Places& places = touched.emplace_back();
        for (ArvGcFeatureNode* one : written)
            places.insert(dependents[one].begin(), dependents[one].end());
    }
    return touched;
}

} // namespace genicam
