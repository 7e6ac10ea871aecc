#pragma once

#include <QString>

namespace quindle {

/// The folder tests/data of the source tree, without a slash at its end. A function, so that only one file is
/// compiled with the path of a computer's folder in it, and a compiler cache serves every clone.
QString testDataFolder();

} // namespace quindle
