#pragma once

#include "app/storage/projectstore.h"

namespace vl::app {

/// Opens a ".vellum" file.
Result<OpenedStore> openBundleStore(const QString &path);

} // namespace vl::app
