#include "zept/IDocument.h"

namespace zept {

IDocument::~IDocument() = default;

} // namespace zept
