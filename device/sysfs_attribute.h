// What the kernel says of a device in a file of sysfs.
#pragma once

#include <string>

// The attribute's text without the line's end; empty when it cannot be read, is longer than 255
// characters, or has any that is not printable ASCII. Any thread.
std::string sysfs_attribute(const std::string& folder, const char* name);
