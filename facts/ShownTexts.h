#pragma once

#include <QString>

#include "facts/Fact.h"

/// Texts of tables and models as a place shows them: translated, except in the report.
namespace quindle {

/// A text that is marked for translators in the context "Facts".
QString factWords(FactPlace place, const char* text);

/// A text that a model made, such as "Discharging..." or "34 months". One that is not known here is shown as
/// it is.
QString modelText(FactPlace place, const QString& text);

/// A number with its unit, such as "30.1 °C".
QString modelFigure(FactPlace place, const QString& text);

} // namespace quindle
