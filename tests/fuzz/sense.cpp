// Sense data and outcomes of SCSI generic nodes, as any device and kernel may hand them over.
#include "enclosure/sg_exchange.h"

#include "tests/enclosure/scripted_sg.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>

namespace {

using namespace enclosure;

// Fills in what a kernel may: at most the room it was given.
int outcome_from(byte_source& source, sg_io_hdr& request) {
    const std::vector<std::uint8_t> sense = source.bytes(source.byte());
    const std::size_t written = std::min<std::size_t>(sense.size(), request.mx_sb_len);
    std::copy_n(sense.begin(), written, request.sbp);
    request.status = source.byte();
    request.host_status = static_cast<unsigned short>(source.number(1));
    request.driver_status = static_cast<unsigned short>(source.number(1));
    request.sb_len_wr = source.flag() ? static_cast<unsigned char>(written) : source.byte();
    request.resid = static_cast<int>(source.number(4));
    constexpr int errors[] = {0, 0, 0, EACCES, EPERM, ENODEV, ENXIO, EIO};
    return errors[source.byte() % std::size(errors)];
}

void check_exchange(byte_source& source) {
    scripted_sg nodes;
    const enclosure::file_handle node;
    const auto allocation = static_cast<std::uint32_t>(source.number(2));
    const std::vector<std::uint8_t> cdb = source.bytes(source.byte() % 32);
    const std::vector<std::uint8_t> out = source.bytes(source.byte());
    int error = 0;
    nodes.on_command = [&](sg_io_hdr& request) {
        require(request.cmd_len <= longest_cdb, "a command has at most 16 bytes");
        require(request.dxfer_len == (out.empty() ? allocation : out.size()),
                "the room for data is what was asked for");
        error = outcome_from(source, request);
        return error;
    };
    const exchange result = sg_exchange(nodes, node, cdb, out, allocation);
    require(error == 0 || result.state != delivery::answered, "an error is no answer");
    require(result.reply.data_in.size() <= allocation, "no more comes back than was asked for");
    require(out.empty() || result.reply.data_in.empty(), "data goes one way");
    require(result.reply.sense.size() <= longest_sense, "sense data has at most 252 bytes");
    decode_sense(result.reply.sense);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    check_exchange(source);
    const std::string sense = source.rest();
    const sense_code code =
        decode_sense({reinterpret_cast<const std::uint8_t*>(sense.data()), sense.size()});
    require(code.key <= 0x0F, "a sense key has four bits");
    require(decode_sense(sense_bytes(code)) == code, "a code is read as it was written");
    return 0;
}
