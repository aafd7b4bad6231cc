// What the kernel says of a device in a file of sysfs.
#pragma once

#include <string>

// What came of reading an attribute.
struct sysfs_reading {
    std::string text;    // as below
    bool failed = false; // it is there, but could not be read or says nothing at all
};

// Any thread.
sysfs_reading read_sysfs_attribute(const std::string& folder, const char* name);

// The attribute's text without the line's end; empty when it cannot be read, is longer than 255
// characters, or has any that is not printable ASCII. Any thread.
std::string sysfs_attribute(const std::string& folder, const char* name);
