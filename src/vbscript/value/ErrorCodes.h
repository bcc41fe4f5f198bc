#pragma once

// The names of the error numbers, made from the rows of ErrorCodes.def that also give ErrorTable.cpp
// its texts: code says err::kTypeMismatch, never 13, and every name has its two texts.

#include <cstdint>

namespace vbs::err {

#define VBS_ERROR(name, number, english, italian) inline constexpr int32_t name = number;
#include "vbscript/value/ErrorCodes.def"
#undef VBS_ERROR

// The compile errors are the block 1001-1058 of the table.
inline constexpr int32_t kFirstCompileError = kCompileOutOfMemory;
inline constexpr int32_t kLastCompileError = kDefaultOnlyOnGet;

// COM status codes a script can meet as numbers. They are no VBScript errors and have no text of
// their own (ErrorText gives the unknown-error text), so they stay out of the table.
inline constexpr int32_t kAborted = -2147467260;        // E_ABORT, as a stopped script reports
inline constexpr int32_t kParamNotFound = -2147352572;  // DISP_E_PARAMNOTFOUND: an omitted argument

}  // namespace vbs::err
