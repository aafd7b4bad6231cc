// The host service as the command sees it.
#pragma once

#include "enclosure/dbus_names.h"
#include "enclosure/identify.h"

#include <cstdint>
#include <memory>
#include <string>

namespace enclosure {

// Where an exported enclosure is to be had on USB/IP.
struct export_place {
    std::string busid;
    std::uint16_t port = 0;
};

// One thread. Starts the service by activation when it does not run. Throws problem, with a line
// that names the thing and the remedy, when something cannot be done.
class service_client {
public:
    service_client();

    void add_enclosure(const bus::options& settings);
    void remove_enclosure(const std::string& name);
    void add_disk(const std::string& name, const identify_block& identity);
    void remove_disk(const std::string& name);
    std::string describe();

    void insert(const std::string& enclosure, std::uint8_t bay, const std::string& disk);
    std::string pull(const std::string& enclosure, std::uint8_t bay);
    std::uint32_t plug(const std::string& enclosure);
    void unplug(const std::string& enclosure);
    export_place begin_export(const std::string& enclosure, std::uint16_t port); // 0: any
    void end_export(const std::string& enclosure);
    void warm_boot(const std::string& enclosure);
    void power_cut(const std::string& enclosure);
    void set_rate(const std::string& enclosure, std::uint64_t bytes_per_second);
    void add_fault(const std::string& enclosure, const bus::options& rule);
    std::uint32_t clear_faults(const std::string& enclosure);
    void arrange(const std::string& enclosure, const std::string& scenario);

private:
    template<class Call> auto made(const std::string& what, Call call);
    template<class... Arguments>
    void manage(const std::string& method, const Arguments&... arguments);
    template<class... Arguments>
    void control(const std::string& enclosure, const std::string& method,
                 const Arguments&... arguments);
    template<class Result, class... Arguments>
    Result ask(const std::string& enclosure, const std::string& method,
               const Arguments&... arguments);
    std::unique_ptr<sdbus::IProxy> object(const std::string& path);

    std::unique_ptr<sdbus::IConnection> connection_;
};

} // namespace enclosure
