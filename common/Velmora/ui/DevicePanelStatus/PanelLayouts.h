#pragma once
// The geometry of every drawn front panel, as data: which images a model loads, under which
// ids, and where each of its ports (or slots) stands. The panels place their ports from these
// rows at run time and the art generator (tools/artgen) draws the images from the same rows
// at build time, so a port can never stand outside its frame.
//
// Plain C++ without Qt: the art generator compiles the layout files too.
//
// A row is read like the product sheet of one model family:
//
//     fixed("CQ110SwitchPanel", kMidPorts7, {
//         E(1, 8, 1, 77, 5 + We, 22),       // ports 1-8 from x 77, each 5 + We further, y 22
//         O(9, 10, 1, 485, 5 + Wo, 44)})
//         .frame("SwitchDevice/10_port_switch_frame.png")
//
// We, He, Wo and Ho are width and height of the electrical and optical "normal" images of
// the row's image set, W that of a bridge's or an AP's link-up image, Wm, Hm, Wi and Hi those
// of a chassis' main and interface boards. Image paths are relative to kImageRoot (or start
// with ":/" for the few images outside it) and are written out in full, because the build
// collects them from these files to know what the art generator writes.
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace velmora {
namespace layouts {

// Root of the module's images in the resource tree.
extern const char* const kImageRoot; // ":/Tarvex7300/Velmora/Images/"

// The word mark of the logo strip, relative to kImageRoot.
extern const char* const kLogoImage;

// Full resource path of a row's image path.
std::string resourcePath(const std::string& path);

// ---------------------------------------------------------------------------------------------
// Expressions of positions: a constant plus up to two multiples of image dimensions.

enum class Measure : std::uint8_t { None, We, He, Wo, Ho, W, Wm, Hm, Wi, Hi };

constexpr Measure We = Measure::We;
constexpr Measure He = Measure::He;
constexpr Measure Wo = Measure::Wo;
constexpr Measure Ho = Measure::Ho;
constexpr Measure W = Measure::W;
constexpr Measure Wm = Measure::Wm;
constexpr Measure Hm = Measure::Hm;
constexpr Measure Wi = Measure::Wi;
constexpr Measure Hi = Measure::Hi;

struct Term {
    int coef = 0;
    Measure measure = Measure::None;
};

struct Expr {
    constexpr Expr(int c = 0) : constant(c) {}
    constexpr Expr(Measure m) : a{1, m} {}
    constexpr Expr(int c, Term ta, Term tb) : constant(c), a(ta), b(tb) {}
    int constant = 0;
    Term a;
    Term b;
};

constexpr Expr operator*(int k, Measure m) { return Expr(0, Term{k, m}, Term{}); }
constexpr Expr operator+(Expr e, int c) { return Expr(e.constant + c, e.a, e.b); }
constexpr Expr operator+(int c, Expr e) { return e + c; }
constexpr Expr operator+(int c, Measure m) { return Expr(c, Term{1, m}, Term{}); }
constexpr Expr operator+(Expr e, Expr f)
{
    // At most two terms in all: the tables never need more.
    Term terms[4] = {e.a, e.b, f.a, f.b};
    Term kept[2] = {};
    int n = 0;
    for (const Term& t : terms)
        if (t.measure != Measure::None && n < 2)
            kept[n++] = t;
    return Expr(e.constant + f.constant, kept[0], kept[1]);
}
constexpr Expr operator+(Expr e, Measure m) { return e + Expr(m); }
constexpr Expr operator-(int c, Expr e)
{
    return Expr(c - e.constant, Term{-e.a.coef, e.a.measure}, Term{-e.b.coef, e.b.measure});
}
constexpr Expr operator-(int c, Measure m) { return c - Expr(m); }

struct Size {
    int width = 0;
    int height = 0;
    bool isEmpty() const { return width <= 0 || height <= 0; }
};

struct Point {
    int x = 0;
    int y = 0;
};

// ---------------------------------------------------------------------------------------------
// Images

// What a port, slot or board is; also the image group a reported port type selects.
enum class PortKind : std::uint8_t { Electrical, Optical, Console, MainBoard, InterfaceBoard };

// The two mirror forms of a jack. A port in the upper row of a two-row group faces the other
// way than one in the lower row; single-form sets use Any.
enum class RowForm : std::uint8_t { Any, Upper, Lower };

// What an image shows. The art generator draws each shape at shapeSize(shape).
enum class Shape : std::uint8_t {
    Frame,               // a device's front, sized to hold its table
    MidElectrical,       // RJ45 of the small desktop switches
    MidOptical,          // SFP cage of the small desktop switches
    Electrical,          // RJ45 of the rack switches, latch down
    ElectricalLower,     // the same jack turned over, latch up
    Optical,             // SFP cage of the rack switches
    OpticalLower,        // the same cage turned over
    Console,             // console jack
    BigElectrical,       // RJ45 of the fiber cards and sending units
    SmallOptical,        // SC socket of the receiving card
    BigOptical,          // SC socket of the sending unit
    BridgePort,          // RJ45 of a wireless bridge
    BridgePortUp,        // RJ45 of a wireless bridge in its sealed gland, facing up
    ApPort,              // RJ45 of the APs, per set
    ApPort2,
    ApPort3,
    ApPort4,
    WireRouterPort1,     // LAN/WAN jack of the wireless routers, per set
    WireRouterPort2,
    WireRouterPort3,
    GateRouterPort1,     // LAN/WAN jack of the gateway routers, per set
    GateRouterPort3,
    MainBoardA,          // half-width main board of the smaller chassis
    MainBoardB,          // full-width main board
    InterfaceBoard,      // full-width line card
    FiberSlotCard,       // card in a slot of the fiber crate
    FiberSlotEmpty,      // blanking plate of an empty crate slot
    FiberSlotElectrical, // port on a crate card
    FiberSlotOptical,
    LegendElectrical,    // 20 by 20 legend icons
    LegendOptical,
    LegendFiberOptical,
    ChannelStatus,       // radio channel state icon
    NoData,              // empty client list picture
    Logo,                // word mark of the logo strip, an SVG
    LogicalElectricalUp, // cells of the logical panel, SVGs; per category look
    LogicalElectricalDown,
    LogicalOptical,
    LogicalOrderRight,
    LogicalOrderLeft,
};

// State an image shows; its colour follows the legend.
enum class PortState : std::uint8_t { None, Down, Up, Alarm, Internet };

// Legend colours as RGB numbers: alarm, normal, connected to the internet, not connected.
constexpr std::uint32_t kAlarmColor = 0xff2525;
constexpr std::uint32_t kNormalColor = 0x95ff24;
constexpr std::uint32_t kInternetColor = 0x4a90e2;
constexpr std::uint32_t kNotConnectedColor = 0x505050;
std::uint32_t stateColor(PortState state); // 0 for None

struct Image {
    int id = 0;
    const char* path = "";
    Shape shape = Shape::Frame;
    PortState state = PortState::None;
};

// The ids a port of one kind and form takes: link down, alarm, link up. A chassis reads
// "not inserted" for down and "inserted" for up. An id the set lacks yields no image.
struct ImageGroup {
    PortKind kind = PortKind::Electrical;
    RowForm form = RowForm::Any;
    int down = -1;
    int alarm = -1;
    int up = -1;
};

// The port images of a family (all ids but the frame's id 0).
struct ImageSet {
    const char* name = "";
    std::vector<Image> images;
    std::vector<ImageGroup> groups;
    int internet = -1; // AP and router panels: a port that reaches the internet
    int console = -1;  // fixed switches: the image a console port shows for good

    const Image* image(int id) const;
    // The group of `kind` in `form`; a set with one form answers for every form.
    const ImageGroup* group(PortKind kind, RowForm form) const;
    bool hasKind(PortKind kind) const;
    bool hasTwoForms(PortKind kind) const;
    // The image whose size stands for `measure` (the link-up image of that kind), or -1.
    int measureImage(Measure measure) const;
};

// ---------------------------------------------------------------------------------------------
// Ports

// A run of ports first, first + step, ... last. The first stands at (x, y), each further one
// dx to the right and dy down. A single port is a run with first == last.
struct Run {
    int first = 0;
    int last = 0;
    int step = 1;
    Expr x;
    Expr y;
    Expr dx;
    Expr dy;
    PortKind kind = PortKind::Electrical;

    bool contains(int port) const
    {
        return port >= first && port <= last && (port - first) % step == 0;
    }
};

// Ports along a row: first-last step s, x X + D, y Y.
Run E(int first, int last, int step, Expr x, Expr dx, Expr y);
Run O(int first, int last, int step, Expr x, Expr dx, Expr y);
// One port at (x, y).
Run E(int port, Expr x, Expr y);
Run O(int port, Expr x, Expr y);
// A console port: drawn for good with the set's console image.
Run console(int port, Expr x, Expr y);
// Boards standing in slots, side by side (slotsAcross) or one under the other (slotsDown).
Run slotsAcross(PortKind kind, int first, int last, Expr x, Expr y, Expr dx);
Run slotsDown(PortKind kind, int first, int last, Expr x, Expr y, Expr dy);

struct PortRange {
    int first = 0;
    int last = 0;
    bool contains(int port) const { return port >= first && port <= last; }
};

struct KindRange {
    int first = 0;
    int last = 0;
    PortKind kind = PortKind::Electrical;
};

constexpr int kNoLastPort = 0x7fffffff;

// ---------------------------------------------------------------------------------------------
// Rows

enum class Family : std::uint8_t { FixedSwitch, Chassis, Bridge, AccessPoint, FiberCard, FiberCrate };

// How a fixed switch treats a port reported as "multiplex".
enum class Multiplex : std::uint8_t {
    AsElectrical, // like "electrical", on every port
    Ignored,      // the port keeps the image it had
    ComboPorts,   // only the combo ports react, with the link-down image of their run
};

constexpr int kAnyMode = -1;

struct Frame {
    int mode = kAnyMode; // the constructor's mode that picks this frame; kAnyMode: the only one
    const char* path = "";
    const char* badge = ""; // printed on the model plate by the art generator
};

struct Logo {
    bool shown = false;
    Point offset; // from the frame's top-left corner; the strip is 48 by 7
};

struct PanelLayout {
    PanelLayout() = default;
    PanelLayout(const char* className, Family family, const ImageSet& images, std::vector<Run> runs);

    const char* className = "";
    Family family = Family::FixedSwitch;
    const ImageSet* images = nullptr;
    std::vector<Run> runs;
    std::vector<Frame> frames;

    // Fixed switches.
    Multiplex multiplex = Multiplex::AsElectrical;
    std::vector<PortRange> comboPorts;
    // The alarm image follows the port number through these ranges; when empty it follows the
    // type the device last reported for the port.
    std::vector<KindRange> alarmKinds;
    // The device tells by its order text whether port 1 stands in the upper row; the table
    // below gives the rows for the other answer.
    bool orderFromDevice = false;
    bool hideElectricalLegend = false;
    Logo logo;
    // The port images are stored scaled to this size (none when empty).
    Size scaledPorts;
    // Bridges: a failed work state query is logged.
    bool logQueryFailure = false;

    // Builders, for the tables.
    PanelLayout& frame(const char* path, const char* badge = "");
    PanelLayout& frame(int mode, const char* path, const char* badge = "");
    PanelLayout& multiplexIgnored();
    PanelLayout& comboMultiplex(std::vector<PortRange> ports);
    PanelLayout& alarmByPortNumber(std::vector<KindRange> ranges);
    PanelLayout& portOrderFromDevice();
    PanelLayout& noElectricalLegend();
    PanelLayout& logoStrip(int x, int y);
    PanelLayout& portsScaledTo(int width, int height);
    PanelLayout& logsQueryFailure();

    // The frame of `mode`; empty when the row has none for it.
    std::string framePath(int mode) const;
    std::vector<int> modes() const; // kAnyMode alone for rows without a mode
    const Run* runOf(int port) const;
    bool isCombo(int port) const;
    // The kind whose alarm image port `port` shows; false when the row keeps the image.
    // Every unsigned number counts: a range up to kNoLastPort has no upper end.
    bool alarmKindOf(unsigned port, PortKind& kind) const;
    // True when a run of the table places a port of `kind`.
    bool hasPortOfKind(PortKind kind) const;
    int imageCount() const; // frame included
};

// ---------------------------------------------------------------------------------------------
// Placing ports

// The size of image `id` as the panel stores it.
struct SizeSource {
    virtual ~SizeSource() = default;
    virtual Size sizeOf(int id) const = 0;
};

int evaluate(const Expr& expr, const ImageSet& images, const SizeSource& sizes);

struct Placement {
    int port = 0;
    Point position;
    PortKind kind = PortKind::Electrical;
};

// Every port of the row, in table order. With `swapRows` the two runs of each two-row pair
// (same start x, neighbouring first ports) trade their y.
std::vector<Placement> placePorts(const PanelLayout& layout, const SizeSource& sizes, bool swapRows = false);

// True when the odd ports stand in the upper row: read from the first two-row pair, with the
// rows as placePorts gives them. True for rows without a pair.
bool oddPortsUp(const PanelLayout& layout, const SizeSource& sizes, bool swapRows = false);

// The jack form of `port`: upper for the ports of the upper row's parity.
RowForm formOf(int port, bool oddUp);

// Sizes the art generator draws, and so the sizes a panel finds in the resource tree.
Size shapeSize(Shape shape);

// The size an image of `layout` has once the panel stored it (scaled when the row scales).
class ArtSizes : public SizeSource {
public:
    explicit ArtSizes(const PanelLayout& layout) : m_layout(layout) {}
    Size sizeOf(int id) const override;

private:
    const PanelLayout& m_layout;
};

// ---------------------------------------------------------------------------------------------
// The tables

const std::vector<PanelLayout>& fixedSwitchLayouts();
const std::vector<PanelLayout>& chassisLayouts();
const std::vector<PanelLayout>& bridgeLayouts();
const std::vector<PanelLayout>& accessPointLayouts();
const std::vector<PanelLayout>& fiberCardLayouts();
// The crate of the fiber chassis page: 21 card slots; the page keeps the same numbers.
const PanelLayout& fiberCrateLayout();

// Every row above, in that order.
std::vector<const PanelLayout*> allLayouts();
// The row of a panel class; null for an unknown name.
const PanelLayout* findLayout(const std::string& className);
// The row of a panel class; for an unknown name a row without images or ports.
const PanelLayout& layoutNamed(const std::string& className);

// Images of the logical panel by device category, by image id 0 to 12.
struct LogicalImages {
    std::vector<int> categories;
    std::vector<Image> images;
};
const std::vector<LogicalImages>& logicalPanelImages();

// Images the pages name outside the panels: legend icons, radio state icons, the empty
// client list, the logo strip. (The dialog's back button icon belongs to the widget toolkit,
// which draws it into its own resources.)
const std::vector<Image>& otherImages();

} // namespace layouts
} // namespace velmora
