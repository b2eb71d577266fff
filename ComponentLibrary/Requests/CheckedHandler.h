#pragma once

#include "Requests/ShapeCheck.h"

#include <QJsonValue>

namespace componentlibrary {

/** One of the library's handlers, which also remembers whether "data" had the form it should have. */
template <class Handler>
class CheckedHandler final : public Handler
{
public:
    explicit CheckedHandler(ShapeCheck check) : m_check(check) {}

    /** Valid after Handle; true as long as no "data" was seen. */
    bool HasWantedShape() const { return m_hasWantedShape; }

protected:
    void HandleData(const QJsonValue& data) override
    {
        m_hasWantedShape = m_check(data);
        Handler::HandleData(data);
    }

private:
    ShapeCheck m_check;
    bool m_hasWantedShape = true;
};

} // namespace componentlibrary
