#pragma once

namespace nuq {

/**
 * Let every connection of the process go through the proxies that the system names (http_proxy, https_proxy,
 * no_proxy on Linux), except those to this very machine: a stand-in cloud on it is never behind a proxy.
 */
void InstallProxies();

} // namespace nuq
