// Text of devices and values made showable.
#pragma once

#include <array>
#include <initializer_list>
#include <string>

#include "model/raid.h"

// The bytes up to the first zero byte, each taken as the Latin-1 character of that number, in
// UTF-8. Disks and bridges may supply any bytes. Any thread.
std::string device_text(const std::string& bytes);

// The text with "%1", "%2" ... replaced by the values in their order; what stands in a value is not
// looked at again. Any thread.
std::string filled(const std::string& text, std::initializer_list<std::string> values);

// A disk or a bay as people count them: 1 or 2. Any thread.
std::string number_of(std::size_t port);

// The local time of a record, "2026-11-21 08:55" in every language; empty unless its bytes are a
// time stamp (docs/formats.md). Any thread.
std::string time_of_record(const std::array<unsigned char, raid_time_size>& stamp);
