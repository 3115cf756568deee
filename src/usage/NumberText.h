#pragma once

#include <string>

// Locale-independent number texts. Every text the panel shows is built here, never through
// printf or iostreams, so that the user's locale cannot change a decimal point into a comma.
namespace brimly::NumberText {

// The value with exactly `fractionDigits` digits after the point, as "%.Nf" prints it in the C
// locale: the exact binary value rounded to nearest, ties to even. A negative value that rounds to
// zero keeps its sign ("-0"). Non-finite values give "nan", "inf" or "-inf".
std::string fixed(double value, int fractionDigits);

// The shortest decimal text that reads back as the same double ("8.53", "1e+20", "nan").
std::string shortest(double value);

}  // namespace brimly::NumberText
