#include "zept/IDocumentEventArgs.h"

namespace zept {

IDocumentEventArgs::~IDocumentEventArgs() = default;

} // namespace zept
