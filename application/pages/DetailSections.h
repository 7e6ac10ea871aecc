#pragma once

#include <vector>

#include <QString>
#include <QVariantMap>

namespace quindle {

struct DetailRow
{
    QString name;
    QString value;

    bool operator==(const DetailRow&) const = default;
};

/// Values that come from one place.
struct DetailSection
{
    QString title;
    std::vector<DetailRow> rows;

    bool operator==(const DetailSection&) const = default;
};

/// Where the details come from; what is empty makes no section.
struct DetailSources
{
    QVariantList sourceRows; ///< what the power-source service says, one dictionary of texts a source
    QVariantMap registry;    ///< entry by name, each a dictionary of its properties
};

/// All values, in the order of their names. A dictionary within a dictionary is rows of its own,
/// "Outer.Inner".
std::vector<DetailSection> detailSections(const DetailSources& sources);

/// Those rows, with their sections, whose name or value holds every word of `search`, in any case; all of
/// them for an empty search.
std::vector<DetailSection> foundDetails(const std::vector<DetailSection>& sections, const QString& search);

/// As text to be pasted: a section's title, then "name: value" a line, an empty line between sections.
QString detailsText(const std::vector<DetailSection>& sections);

} // namespace quindle
