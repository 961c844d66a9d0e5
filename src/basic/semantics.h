// Choices where the language leaves a point open. Each is made here and nowhere else, so that one
// line changes when a compiler shows another meaning.
#pragma once

#include <cstdint>

#include "basic/check/types.h"

namespace tarnwick::basic {

/// Value of a comparison that holds: all bits set, so that the bitwise NOT works on it.
inline constexpr std::int64_t kComparisonTrue = -1;
/// Value of the constant TRUE, and of a yes/no property that is read.
inline constexpr std::int64_t kTrueConstant = 1;
inline constexpr std::int64_t kFalseConstant = 0;
/// Type of a name without declaration and suffix.
inline constexpr Storage kUndeclaredStorage = Storage::Double;
/// Type of a declared name without AS and suffix (DIM v; a parameter).
inline constexpr Storage kUntypedStorage = Storage::Double;
/// A fraction stored into a whole number: to the nearest, half to even.
inline constexpr bool kRoundsHalfToEven = true;
/// A number too large for its variable keeps its low bits.
inline constexpr bool kOverflowKeepsLowBits = true;
/// AND and OR evaluate both sides.
inline constexpr bool kLogicEvaluatesBothSides = true;
/// Two quotes inside a text are not one quote.
inline constexpr bool kDoubledQuoteIsEscape = false;
/// `-2 ^ 2` is -(2 ^ 2).
inline constexpr bool kPowerBeforeNegation = true;
/// REDIM keeps what fits into the new bounds.
inline constexpr bool kRedimKeepsValues = true;
/// Setting Checked from code raises OnClick; setting Text from code raises OnChange.
inline constexpr bool kCodeRaisesOnClick = true;
inline constexpr bool kCodeRaisesOnChange = true;
/// A line end counts as two characters in positions of a rich edit.
inline constexpr int kLineEndLength = 2;
/// Decimal sign of numbers as text, whatever the desktop's language.
inline constexpr char kDecimalSign = '.';
/// Opening a file that is not there gives 0 and a note; KILL and the like give a note.
inline constexpr bool kFileFaultsAreNotes = true;
/// Without RANDOMIZE, RND gives the same series in every run.
inline constexpr bool kRandomSeriesIsFixed = true;
/// Handlers may run while another one waits (DoEvents, ShowModal).
inline constexpr bool kEventsReenter = true;
/// Lowest index of an array declared by its highest index alone.
inline constexpr std::int64_t kLowestIndex = 0;
/// Handle of the first $RESOURCE; 0 is no resource.
inline constexpr std::int64_t kFirstResource = 1;

// --- Function library ---------------------------------------------------------------------------

/// What ffCurrency and %m put in front of a number; a negative one stands in brackets.
inline constexpr char kCurrencySign = '$';
/// Decimals of %f, %n and %m without a precision.
inline constexpr int kDefaultDecimals = 2;
/// Significant digits of %e and %g, and of STRF$ with a precision below 1.
inline constexpr int kDefaultDigits = 15;
/// SOUND: a duration below this one is in seconds, any other in milliseconds.
inline constexpr double kSoundMillisecondsFrom = 20;
/// What DOEVENTS waits for an event, in milliseconds, so that a loop around it does not keep a
/// processor busy.
inline constexpr int kDoEventsWait = 10;

}  // namespace tarnwick::basic
