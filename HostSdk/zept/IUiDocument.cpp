#include "zept/IUiDocument.h"

namespace zept {

IUiDocument::~IUiDocument() = default;

} // namespace zept
