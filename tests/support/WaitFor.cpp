#include "support/WaitFor.h"

#include <QtTest/qtestcase.h>
#include <QtTest/qtestsystem.h>

namespace testsupport {

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit)
{
    return QTest::qWaitFor(condition, static_cast<int>(limit.count()));
}

} // namespace testsupport
