#include "app/models/objecttreemodel.h"

namespace vl::app {

ObjectTreeModel::~ObjectTreeModel() = default;

} // namespace vl::app
