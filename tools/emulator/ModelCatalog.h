#pragma once
// The product range the emulator plays: each model text with its device class, the front
// panel family the client draws for it, and its ports. Port runs are written
// "1-24E,25-28O": E electrical, O optical, M combo ("multiplex"), W wireless.
#include <string>
#include <vector>

namespace emulator {

enum Category : int {
    kEncodingDevice = 0,
    kSwitch = 120,
    kBridge = 121,
    kFiberConverter = 122,
    kHiddenClass = 123, // a class the client does not show (topology peers only)
    kWirelessController = 124,
    kWirelessAp = 125,
    kWirelessRouter = 126,
    kEnterpriseRouter = 130,
};

struct ModelInfo {
    const char* model;
    int category;
    const char* family;   // panel family the client picks for this model
    const char* ports;    // port runs
    bool poe;             // PoE ports (the electrical ones but the last two) and a PoE budget
    int slots;            // chassis: slot count (0 for fixed devices)
    const char* mainSlots; // chassis: main board slots, "0,1"
    int radios;           // APs: radio count (2 or 3)
};

// Every model of the catalog, in the order of the client's panel tables.
const std::vector<ModelInfo>& modelCatalog();
// The catalog row of a model text, or null.
const ModelInfo* findModel(const std::string& model);

struct PortRun {
    int first;
    int last;
    char type; // 'E', 'O', 'M', 'W'
};
// Parses "1-8E,9-10O"; malformed runs are skipped.
std::vector<PortRun> parsePortRuns(const std::string& text);
// The wire text of a port type letter: "electrical", "optical", "multiplex", "wireless".
const char* portTypeText(char type);

} // namespace emulator
