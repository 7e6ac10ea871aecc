#pragma once

#include "plist/PropertyListGraph.h"

namespace quindle {

/// The kinds of objects that archives of snapshot records hold.
enum class ArchivedClass { Unknown, Array, Set, Dictionary, Text, Data, Date, Number, Null };

/// The kind that a class of the platform is, by its name.
ArchivedClass archivedClass(const PropertyListGraph& graph, const PropertyListGraph::Element& name);

} // namespace quindle
