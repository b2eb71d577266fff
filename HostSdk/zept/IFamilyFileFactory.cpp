#include "zept/IFamilyFileFactory.h"

namespace zept {

IFamilyFileFactory::~IFamilyFileFactory() = default;

} // namespace zept
