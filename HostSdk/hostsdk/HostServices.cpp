#include "hostsdk/HostServices.h"

namespace hostsdk {

namespace {

HostServices& Table()
{
    static HostServices s_table;
    return s_table;
}

} // namespace

void Install(const HostServices& services)
{
    Table() = services;
}

const HostServices& Installed()
{
    return Table();
}

} // namespace hostsdk
