#pragma once

namespace componentlibrary {

/** How often and how soon a request is repeated after a passing fault; all times in milliseconds. */
struct RetryPolicy
{
    int tries = 3;        ///< how often a request is sent at most
    int firstDelay = 300; ///< before the second try, give or take the jitter
    int growth = 3;       ///< each further delay is this many times the one before
    double jitter = 0.25; ///< share by which a delay is made shorter or longer, so that clients do not move in step
    int longestPromise = 60000; ///< a server that asks for a longer wait is not waited for: the request ends instead

    /**
     * The delay before try number `next` (2 for the first repetition).
     * @param dice a number from 0 to 1; 0.5 gives the delay without jitter
     */
    int DelayBefore(int next, double dice) const;
};

} // namespace componentlibrary
