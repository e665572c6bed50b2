#include "core/commands/command.h"

namespace vl::core {

Command::~Command() = default;

} // namespace vl::core
