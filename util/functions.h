// Text and number functions that the model and the window share. They hold no state and may
// be called on any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Decimal digits of `value`, no padding, no separators; 0 gives "0".
std::string inttostring(std::uint64_t value);

// Upper-case hexadecimal of a positive `value`, padded with "0" in front to at least `width`
// digits and never cut. Zero and negative values give the padding alone: (0, 0) is empty.
std::string inttohexstring(std::int64_t value, int width);

// Removes leading and trailing blanks, line feeds and tabs, and no other character: carriage
// returns and zero bytes stay.
void trim(std::string& text);

// True when the first `n` bytes are equal; zero bytes end nothing. n <= 0 gives true.
bool str_equal(const unsigned char* a, const unsigned char* b, int n);

// Reverses `size` bytes in place; size <= 0 changes nothing.
void ppcReverse(unsigned char* bytes, int size);

// The host's processor: 0 = x86, or unknown because the query failed, 1 = big-endian PowerPC,
// 2 = any other.
int getArchitecture();

// The same answer for a given result of the processor-type query: 7 is x86, 18 is PowerPC,
// nothing is a failed query.
int architecture_of(std::optional<std::int32_t> cputype);

// ASCII text of at most 99 characters, up to the first zero; empty when a character in it is
// not ASCII.
std::string cfstringtostring(std::u16string_view text);

// The bytes up to the first zero byte, each as the Latin-1 character of that number.
std::u16string stringtonsstring(const std::string& text);

// Takes a diagnostic line of the model and discards it: the point where a trace belongs.
void writeintofile(std::string line);
