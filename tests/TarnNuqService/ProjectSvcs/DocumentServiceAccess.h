#pragma once

#include "ProjectSvcs/DocumentService.h"

namespace tarnnuq {

/// A document service that ends with its test.
class DocumentServiceAccess
{
public:
    DocumentService& Service() { return m_service; }

private:
    DocumentService m_service{nullptr};
};

} // namespace tarnnuq
