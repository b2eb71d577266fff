#pragma once

#include "Errors/ErrorInfo.h"

#include <vector>

namespace componentlibrary {

/** The stable text of a cause, for example "network.refused"; "" for ErrorCode::None. */
QString ErrorId(ErrorCode code);

/** The group of a cause. */
ErrorGroup GroupOf(ErrorCode code);

/** Every cause except ErrorCode::None, in the order of the enumeration. */
std::vector<ErrorCode> AllErrorCodes();

/**
 * What failed and why, in the language of the installed translators, for example "The categories could not be
 * loaded. 127.0.0.1:8080 refuses connections." Empty when there is no error.
 */
QString ErrorSentence(const ErrorInfo& error);

/** Only why it failed, for a place that already says what was tried. Empty when there is no error. */
QString ErrorCause(const ErrorInfo& error);

/**
 * What the server itself says about it, in its own words: "The server says: There is no project P9." Empty when it
 * says nothing, or when ErrorCause already holds it.
 */
QString ServerRemark(const ErrorInfo& error);

/** What the user can try, one or two sentences in the language of the installed translators; may be empty. */
QString ErrorHint(const ErrorInfo& error);

} // namespace componentlibrary
