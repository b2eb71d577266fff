#pragma once

#include "Components/ComponentStream.h"
#include "Program/Session.h"

#include <functional>

namespace nuq {

/**
 * Runs a component stream to its end, with progress on a terminal; Ctrl-C and a closed output cancel it.
 * @param takePage called with each page; the next one is asked for when it returns
 */
void RunStream(Session& session, componentlibrary::ComponentStream& stream,
    const std::function<void(const componentlibrary::ComponentStream::Page&)>& takePage);

} // namespace nuq
