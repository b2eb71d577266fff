#pragma once

#include "FamilyFiles/Geometry/OcctSolid.h"

#include <TDocStd_Document.hxx>

namespace familyfiles {

/// A document of the library with one shape and the colours of its faces: what its writers take. Closed when the object
/// goes.
class ExchangeDocument
{
public:
    explicit ExchangeDocument(const OcctSolid& solid);
    ~ExchangeDocument();
    ExchangeDocument(const ExchangeDocument&) = delete;
    ExchangeDocument& operator=(const ExchangeDocument&) = delete;

    const Handle(TDocStd_Document) & Document() const { return m_document; }

private:
    Handle(TDocStd_Document) m_document;
};

} // namespace familyfiles
