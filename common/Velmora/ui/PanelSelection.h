#pragma once
// Which front panel a device gets: per category, an ordered table of model texts and the
// panel class that each row builds. The first row whose test holds decides.
//
// A row of the switch table names a model family once; to support a new model, add its
// text to the row of its family, or add a row in front of any shorter text that the new
// text contains ("contains" rows are tried in order).
#include <string>
#include <vector>

class QWidget;

namespace velmora {

class CPanelStatusBase;

enum class ModelTest {
    Contains, // the literal is a substring of the model text that the client holds
    Equals    // the model text that the device reports is exactly the literal
};

struct PanelChoice {
    static constexpr int kNoMode = -1;

    ModelTest test;
    std::vector<std::string> models; // tried in this order
    const char* panelClass;          // the class that `create` builds, by name
    int mode;                        // the constructor's first argument; kNoMode for a class without one
    int frameHeight;                 // fixed height of the page's panel frame; 0 leaves it alone
    CPanelStatusBase* (*create)(QWidget* parent); // null when the allocation fails

    // Whether this row holds for the client's and the device's model texts.
    bool holds(const std::string& clientModel, const std::string& reportedModel) const;
};

struct PanelTable {
    int category;             // tarvex7300::Device::DeviceCategory as a number
    bool hideConnectedLegend; // switches, bridges and fiber cards have no internet state to show
    std::vector<PanelChoice> rows;
};

// Every category that has panels, each with its rows in order.
const std::vector<PanelTable>& panelTables();

// The table of `category`; null for a category without panels.
const PanelTable* panelTableForCategory(int category);

// The first row of the category's table that holds; null when none does.
const PanelChoice* choosePanel(int category, const std::string& clientModel, const std::string& reportedModel);

} // namespace velmora
