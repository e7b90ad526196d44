// readCpuDriver: "#cpu" lays a controller's driver over the run tables. The
// counters it sets outlive the run on purpose; a failed reading leaves in the
// tables what came before the failure, and the run goes on with finding 199.

#include "assembler/assembler.h"
#include "assembler/cpu_driver.h"
#include "base/text.h"

namespace korvex {
namespace {

// The rows of a driver section take the table's first rows: the table is cut
// to one row first and grown again, so only row 0 keeps what the driver does
// not write (the last column), as when the rows were written one by one.
template <typename Table>
void startTableWith(Table& table, std::size_t rows) {
    if (rows == 0) return;
    table.growTo(0);
    table.growTo(static_cast<int>(rows) - 1);
}

void layNames(TextTable<3>& table, const std::vector<DriverName>& names) {
    startTableWith(table, names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int row = static_cast<int>(i);
        table.set(row, 0, names[i].name);
        table.set(row, 1, names[i].address);
        table.set(row, 2, "1");
    }
}

void layNames(TextTable<4>& table, const std::vector<DriverName>& names) {
    startTableWith(table, names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int row = static_cast<int>(i);
        table.set(row, 0, names[i].name);
        table.set(row, 1, names[i].address);
        table.set(row, 2, "1");
    }
}

}  // namespace

void Assembler::keepDriver(const CpuDriver& read) {
    if (!read.vectors.empty()) driver_.vectors = read.vectors;
    if (!read.sfrs.empty()) driver_.sfrs = read.sfrs;
    if (!read.bits.empty()) driver_.bits = read.bits;
    if (read.vectorHeader) driver_.vectorCount = read.vectorCount;
    if (read.sfrHeader) driver_.sfrCount = read.sfrCount;
    if (read.bitHeader) driver_.bitCount = read.bitCount;
    driver_.vectorHeader = driver_.vectorHeader || read.vectorHeader;
    driver_.sfrHeader = driver_.sfrHeader || read.sfrHeader;
    driver_.bitHeader = driver_.bitHeader || read.bitHeader;
}

void Assembler::readCpuDriver(const std::string& head, const std::string& tail) {
    const std::string joined = head + tail;
    std::string name = joined.size() > 3 && joined[3] == '='
                           ? joined.substr(std::min<std::size_t>(4, joined.size()))
                           : joined.substr(std::min<std::size_t>(3, joined.size()));
    name = removeAll(name, '\'');
    const DriverReading reading = readCpuDriverFile(cpuDriverPath(name, settings_.programFolder));
    const CpuDriver& read = reading.driver;

    auto& labels = state_.labelTable;
    startTableWith(labels, read.vectors.size());
    for (std::size_t i = 0; i < read.vectors.size(); ++i) {
        const int row = static_cast<int>(i);
        labels.set(row, 0, read.vectors[i].name);
        if (!read.vectors[i].address) break;
        labels.set(row, 1, std::to_string(*read.vectors[i].address));
        labels.set(row, 2, "1");
    }
    layNames(state_.sfrTable, read.sfrs);
    layNames(state_.bitTable, read.bits);
    keepDriver(read);

    if (reading.failure) {
        host_.messageBox("Korvex", driverFailureText(reading), MessageButtons::Ok,
                         MessageIcon::Critical);
        state_.errorNumber = Finding::DriverUnreadable;
        return;
    }
    state_.firstUserBit = state_.bitTable.lastIndex();
}

}  // namespace korvex
