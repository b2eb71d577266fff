#pragma once

namespace nuq {

/** The three standard streams, as far as a terminal may be behind them. */
enum class Stream
{
    Input = 0,
    Output = 1,
    Error = 2
};

/** Whether a stream is a terminal. */
bool IsTerminal(Stream stream);

/** Columns of the terminal behind a stream; 0 when there is none or it does not say. */
int TerminalWidth(Stream stream);

/** Whether the environment speaks against colours: NO_COLOR is set and not empty, or TERM is "dumb". */
bool EnvironmentRefusesColour();

} // namespace nuq
