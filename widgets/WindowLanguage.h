#pragma once

#include "common/ShownLanguage.h"

namespace quindle {

/// The language of a process with windows: the toolkit's own texts (file dialogs, menus of text fields) are
/// in it too, where the system has them, and the windows run from right to left where it does. Needs a
/// QGuiApplication.
class WindowLanguage
{
public:
    /// As ShownLanguage.
    explicit WindowLanguage(const QString& folder);

private:
    ShownLanguage m_language;
};

} // namespace quindle
