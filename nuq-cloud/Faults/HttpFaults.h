#pragma once

#include "Api/Tweaks.h"
#include "FaultRelay/Fault.h"
#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <optional>
#include <vector>

namespace nuqcloud {

/// The lies that endpoints are to tell.
Tweaks TweaksFor(const std::vector<Fault>& faults);

/// The reply that takes the place of the true one, when one of the faults is of that sort.
std::optional<HttpReply> ReplacementFor(const std::vector<Fault>& faults, const HttpRequest& request);

/// Spoils a true reply as the faults say; it stays well-formed HTTP.
void Spoil(const std::vector<Fault>& faults, HttpReply& reply);

} // namespace nuqcloud
