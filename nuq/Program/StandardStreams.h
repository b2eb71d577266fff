#pragma once

namespace nuq {

/**
 * Takes the places of standard streams that the caller has closed, before anything else is opened.
 *
 * Otherwise the first files and sockets of the program would get their numbers, and results and messages would be
 * written into them. Using such a stream fails, as it should.
 */
void HoldStandardStreams();

} // namespace nuq
