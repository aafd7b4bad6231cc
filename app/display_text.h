// Text of devices made showable.
#pragma once

#include <string>

// The bytes up to the first zero byte, each taken as the Latin-1 character of that number, in
// UTF-8. Disks and bridges may supply any bytes. Any thread.
std::string device_text(const std::string& bytes);

// The text with its "%1" replaced; unchanged without one. Any thread.
std::string filled(std::string text, const std::string& value);
