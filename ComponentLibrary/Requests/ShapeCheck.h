#pragma once

class QJsonValue;

namespace componentlibrary {

/**
 * What the "data" of an answer has to look like before an empty result means "there is none".
 *
 * The library's handlers turn any other form into an empty result without a word. For a user, a list that is empty
 * because the answer was nonsense must not look like a list that is empty.
 */
using ShapeCheck = bool (*)(const QJsonValue& data);

/** An array. */
bool IsArray(const QJsonValue& data);

/** An object, or null: the library reads an empty one and null as "there is none". */
bool IsRecord(const QJsonValue& data);

/** An object with a non-negative "totalCount" (a number, or a number as text) and a "list" array. */
bool IsPage(const QJsonValue& data);

/** An object with a "parameters" array and a "familyTypes" array. */
bool IsSpecificationList(const QJsonValue& data);

/** An object, perhaps empty, whose "familyType", when present, is an object. */
bool IsSpecification(const QJsonValue& data);

} // namespace componentlibrary
