#pragma once

#include <optional>

#include "menubar/TitleTemplate.h"
#include "platform/RunLoop.h"
#include "platform/ShownItem.h"

namespace quindle {

/// What the preferences need of the application delegate: it refreshes the title and has the values that the
/// preview shows. inherited: the name; it is an interface, not a text. Main thread only.
class StatusBarTitle
{
public:
    virtual ~StatusBarTitle() = default;

    /// Refreshes the status item now.
    virtual void updateStatusBarTitle() = 0;

    /// Makes the battery read its own settings again (the unit its temperature is shown in) and refresh.
    virtual void reloadBattery() = 0;

    /// What the placeholders of a title template stand for at the moment; nothing without a battery.
    virtual std::optional<TitleValues> titleValues() const = 0;

    /// What the panel shows of the item; nothing where that is not known.
    virtual std::optional<ShownItem> shownItem() const { return std::nullopt; }

    /// Values are kept up to date on time for as long as the returned object exists.
    virtual Punctuality watchValues() const = 0;
};

} // namespace quindle
