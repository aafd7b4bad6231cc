#include "tests/vm/enclosures.h"

#include "tests/vm/program.h"
#include "tests/vm/shell.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <stdexcept>

real_enclosure::real_enclosure(std::string name, const std::string& size)
    : name_(std::move(name)), usb_(name_, name_) {
    run("krenclosure new " + name_ + " --serial " + name_);
    for (int bay = 0; bay < 2; ++bay) {
        const std::string disk = name_ + (bay == 0 ? "-a" : "-b");
        make_disk(disk, size);
        insert(bay, disk);
    }
}

real_enclosure::~real_enclosure() {
    usb_.pull();
    try {
        the_window().await(name_ + ": is not there any more", [this] { return !chip_with(name_); });
    } catch (const std::runtime_error& trouble) {
        ADD_FAILURE() << trouble.what();
    }
    try_run("krenclosure remove " + name_);
    for (const std::string& disk : disks_) {
        try_run("krenclosure remove " + disk);
    }
}

void real_enclosure::pull(int bay) {
    run("krenclosure pull " + name_ + " " + std::to_string(bay));
}

void real_enclosure::insert(int bay, const std::string& disk) {
    run("krenclosure insert " + name_ + " " + std::to_string(bay) + " " + disk);
}

void real_enclosure::make_disk(const std::string& disk, const std::string& size) {
    run("krenclosure disk " + disk + " --serial " + disk + " --size " + size);
    disks_.push_back(disk);
}

void real_enclosure::set_rate(int rate) {
    run("krenclosure rate " + name_ + " " + std::to_string(rate));
}

bool real_enclosure::copies() const {
    const auto told = nlohmann::json::parse(run("krenclosure list --json"));
    for (const auto& one : told.at("enclosures")) {
        if (one.at("name") == name_) {
            return one.at("array").at("state") == "copying";
        }
    }
    return false;
}
