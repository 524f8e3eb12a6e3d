// Evaluation of the layout rows: image groups, port placement, sizes of the drawn art.
#include "PanelLayouts.h"

#include <algorithm>

namespace velmora {
namespace layouts {

const char* const kImageRoot = ":/Tarvex7300/Velmora/Images/";

std::string resourcePath(const std::string& path)
{
    if (path.empty())
        return std::string();
    if (path.compare(0, 2, ":/") == 0)
        return path;
    return kImageRoot + path;
}

std::uint32_t stateColor(PortState state)
{
    switch (state) {
    case PortState::Down:
        return kNotConnectedColor;
    case PortState::Up:
        return kNormalColor;
    case PortState::Alarm:
        return kAlarmColor;
    case PortState::Internet:
        return kInternetColor;
    case PortState::None:
        break;
    }
    return 0;
}

// ---------------------------------------------------------------------------------------------

const Image* ImageSet::image(int id) const
{
    for (const Image& img : images)
        if (img.id == id)
            return &img;
    return nullptr;
}

const ImageGroup* ImageSet::group(PortKind kind, RowForm form) const
{
    const ImageGroup* any = nullptr;
    for (const ImageGroup& g : groups) {
        if (g.kind != kind)
            continue;
        if (g.form == form)
            return &g;
        if (g.form == RowForm::Any || (form == RowForm::Any && g.form == RowForm::Upper))
            any = &g;
    }
    return any;
}

bool ImageSet::hasKind(PortKind kind) const
{
    return std::any_of(groups.begin(), groups.end(), [kind](const ImageGroup& g) { return g.kind == kind; });
}

bool ImageSet::hasTwoForms(PortKind kind) const
{
    return std::any_of(groups.begin(), groups.end(),
                       [kind](const ImageGroup& g) { return g.kind == kind && g.form == RowForm::Lower; });
}

int ImageSet::measureImage(Measure measure) const
{
    PortKind kind = PortKind::Electrical;
    switch (measure) {
    case Measure::None:
        return -1;
    case Measure::We:
    case Measure::He:
    case Measure::W:
        kind = PortKind::Electrical;
        break;
    case Measure::Wo:
    case Measure::Ho:
        kind = PortKind::Optical;
        break;
    case Measure::Wm:
    case Measure::Hm:
        kind = PortKind::MainBoard;
        break;
    case Measure::Wi:
    case Measure::Hi:
        kind = PortKind::InterfaceBoard;
        break;
    }
    const ImageGroup* g = group(kind, RowForm::Upper);
    return g ? g->up : -1;
}

// ---------------------------------------------------------------------------------------------

Run E(int first, int last, int step, Expr x, Expr dx, Expr y)
{
    Run r;
    r.first = first;
    r.last = last;
    r.step = step;
    r.x = x;
    r.dx = dx;
    r.y = y;
    r.kind = PortKind::Electrical;
    return r;
}

Run O(int first, int last, int step, Expr x, Expr dx, Expr y)
{
    Run r = E(first, last, step, x, dx, y);
    r.kind = PortKind::Optical;
    return r;
}

Run E(int port, Expr x, Expr y) { return E(port, port, 1, x, 0, y); }

Run O(int port, Expr x, Expr y) { return O(port, port, 1, x, 0, y); }

Run console(int port, Expr x, Expr y)
{
    Run r = E(port, x, y);
    r.kind = PortKind::Console;
    return r;
}

Run slotsAcross(PortKind kind, int first, int last, Expr x, Expr y, Expr dx)
{
    Run r = E(first, last, 1, x, dx, y);
    r.kind = kind;
    return r;
}

Run slotsDown(PortKind kind, int first, int last, Expr x, Expr y, Expr dy)
{
    Run r = E(first, last, 1, x, 0, y);
    r.dy = dy;
    r.kind = kind;
    return r;
}

// ---------------------------------------------------------------------------------------------

PanelLayout::PanelLayout(const char* name, Family fam, const ImageSet& set, std::vector<Run> portRuns)
    : className(name), family(fam), images(&set), runs(std::move(portRuns))
{
    if (family != Family::FixedSwitch)
        multiplex = Multiplex::Ignored;
}

PanelLayout& PanelLayout::frame(const char* path, const char* badge) { return frame(kAnyMode, path, badge); }

PanelLayout& PanelLayout::frame(int mode, const char* path, const char* badge)
{
    frames.push_back(Frame{mode, path, badge});
    return *this;
}

PanelLayout& PanelLayout::multiplexIgnored()
{
    multiplex = Multiplex::Ignored;
    return *this;
}

PanelLayout& PanelLayout::comboMultiplex(std::vector<PortRange> ports)
{
    multiplex = Multiplex::ComboPorts;
    comboPorts = std::move(ports);
    return *this;
}

PanelLayout& PanelLayout::alarmByPortNumber(std::vector<KindRange> ranges)
{
    alarmKinds = std::move(ranges);
    return *this;
}

PanelLayout& PanelLayout::portOrderFromDevice()
{
    orderFromDevice = true;
    return *this;
}

PanelLayout& PanelLayout::noElectricalLegend()
{
    hideElectricalLegend = true;
    return *this;
}

PanelLayout& PanelLayout::logoStrip(int x, int y)
{
    logo.shown = true;
    logo.offset = Point{x, y};
    return *this;
}

PanelLayout& PanelLayout::portsScaledTo(int width, int height)
{
    scaledPorts = Size{width, height};
    return *this;
}

PanelLayout& PanelLayout::logsQueryFailure()
{
    logQueryFailure = true;
    return *this;
}

std::string PanelLayout::framePath(int mode) const
{
    for (const Frame& f : frames)
        if (f.mode == mode || f.mode == kAnyMode)
            return f.path;
    return std::string();
}

std::vector<int> PanelLayout::modes() const
{
    std::vector<int> result;
    for (const Frame& f : frames)
        result.push_back(f.mode);
    return result;
}

const Run* PanelLayout::runOf(int port) const
{
    for (const Run& r : runs)
        if (r.contains(port))
            return &r;
    return nullptr;
}

bool PanelLayout::isCombo(int port) const
{
    return std::any_of(comboPorts.begin(), comboPorts.end(), [port](const PortRange& r) { return r.contains(port); });
}

bool PanelLayout::alarmKindOf(unsigned port, PortKind& kind) const
{
    for (const KindRange& r : alarmKinds) {
        const bool aboveFirst = r.first <= 0 || port >= static_cast<unsigned>(r.first);
        const bool belowLast = r.last == kNoLastPort || (r.last >= 0 && port <= static_cast<unsigned>(r.last));
        if (aboveFirst && belowLast) {
            kind = r.kind;
            return true;
        }
    }
    return false;
}

bool PanelLayout::hasPortOfKind(PortKind kind) const
{
    return std::any_of(runs.begin(), runs.end(), [kind](const Run& r) { return r.kind == kind; });
}

int PanelLayout::imageCount() const { return 1 + static_cast<int>(images ? images->images.size() : 0); }

// ---------------------------------------------------------------------------------------------

namespace {

int dimension(Measure m, const ImageSet& images, const SizeSource& sizes)
{
    const int id = images.measureImage(m);
    if (id < 0)
        return 0;
    const Size s = sizes.sizeOf(id);
    switch (m) {
    case Measure::We:
    case Measure::Wo:
    case Measure::W:
    case Measure::Wm:
    case Measure::Wi:
        return s.width;
    default:
        return s.height;
    }
}

// The run that forms a two-row pair with `run`: same start x, first ports neighbours.
const Run* partnerOf(const PanelLayout& layout, const Run& run, const ImageSet& images, const SizeSource& sizes)
{
    const int x = evaluate(run.x, images, sizes);
    for (const Run& other : layout.runs) {
        if (&other == &run || (other.first != run.first + 1 && other.first != run.first - 1))
            continue;
        if (other.kind == PortKind::Console || run.kind == PortKind::Console)
            continue;
        if (evaluate(other.x, images, sizes) == x)
            return &other;
    }
    return nullptr;
}

} // namespace

int evaluate(const Expr& expr, const ImageSet& images, const SizeSource& sizes)
{
    int value = expr.constant;
    if (expr.a.measure != Measure::None)
        value += expr.a.coef * dimension(expr.a.measure, images, sizes);
    if (expr.b.measure != Measure::None)
        value += expr.b.coef * dimension(expr.b.measure, images, sizes);
    return value;
}

std::vector<Placement> placePorts(const PanelLayout& layout, const SizeSource& sizes, bool swapRows)
{
    std::vector<Placement> result;
    if (!layout.images)
        return result;
    const ImageSet& images = *layout.images;
    for (const Run& run : layout.runs) {
        const Run* yRun = &run;
        if (swapRows) {
            if (const Run* partner = partnerOf(layout, run, images, sizes))
                yRun = partner;
        }
        const int x0 = evaluate(run.x, images, sizes);
        const int y0 = evaluate(yRun->y, images, sizes);
        const int dx = evaluate(run.dx, images, sizes);
        const int dy = evaluate(run.dy, images, sizes);
        int index = 0;
        for (int port = run.first; port <= run.last; port += run.step, ++index)
            result.push_back(Placement{port, Point{x0 + index * dx, y0 + index * dy}, run.kind});
    }
    return result;
}

bool oddPortsUp(const PanelLayout& layout, const SizeSource& sizes, bool swapRows)
{
    if (!layout.images)
        return true;
    for (const Run& run : layout.runs) {
        if (run.first % 2 == 0)
            continue;
        const Run* partner = partnerOf(layout, run, *layout.images, sizes);
        if (!partner)
            continue;
        const int yOdd = evaluate(run.y, *layout.images, sizes);
        const int yEven = evaluate(partner->y, *layout.images, sizes);
        return swapRows ? yEven < yOdd : yOdd < yEven;
    }
    return true;
}

RowForm formOf(int port, bool oddUp)
{
    const bool odd = (port % 2) != 0;
    return odd == oddUp ? RowForm::Upper : RowForm::Lower;
}

Size shapeSize(Shape shape)
{
    switch (shape) {
    case Shape::Frame:
        return Size{};
    case Shape::MidElectrical:
        return Size{36, 28};
    case Shape::MidOptical:
        return Size{28, 20};
    case Shape::Electrical:
    case Shape::ElectricalLower:
    case Shape::Console:
        return Size{16, 13};
    case Shape::Optical:
    case Shape::OpticalLower:
        return Size{16, 11};
    case Shape::BigElectrical:
        return Size{30, 24};
    case Shape::SmallOptical:
        return Size{22, 14};
    case Shape::BigOptical:
        return Size{34, 26};
    case Shape::BridgePort:
        return Size{22, 18};
    case Shape::BridgePortUp:
        return Size{42, 35};
    case Shape::ApPort:
        return Size{22, 18};
    case Shape::ApPort2:
    case Shape::ApPort3:
        return Size{20, 16};
    case Shape::ApPort4:
        return Size{24, 18};
    case Shape::WireRouterPort1:
        return Size{20, 16};
    case Shape::WireRouterPort2:
        return Size{22, 16};
    case Shape::WireRouterPort3:
        return Size{18, 15};
    case Shape::GateRouterPort1:
        return Size{24, 20};
    case Shape::GateRouterPort3:
        return Size{22, 18};
    case Shape::MainBoardA:
        return Size{290, 66};
    case Shape::MainBoardB:
        return Size{590, 56};
    case Shape::InterfaceBoard:
        return Size{590, 44};
    case Shape::FiberSlotCard:
    case Shape::FiberSlotEmpty:
        return Size{24, 96};
    case Shape::FiberSlotElectrical:
        return Size{12, 10};
    case Shape::FiberSlotOptical:
        return Size{10, 14};
    case Shape::LegendElectrical:
    case Shape::LegendOptical:
    case Shape::LegendFiberOptical:
        return Size{20, 20};
    case Shape::ChannelStatus:
        return Size{16, 16};
    case Shape::NoData:
        return Size{100, 100};
    case Shape::Logo:
        return Size{48, 7};
    // The logical panel's columns: a port cell is its image's height plus the device's margin
    // on each side (2 on the devices we know), so a 12-high port makes a 16-wide cell, as wide
    // as a "septalSpace" column; the border images are as wide as that cell and a row high.
    // A column without its own width draws as wide as the one before it, so with all three
    // equal no column overlaps or leaves a gap.
    case Shape::LogicalElectricalUp:
    case Shape::LogicalElectricalDown:
    case Shape::LogicalOptical:
        return Size{12, 12};
    case Shape::LogicalOrderRight:
    case Shape::LogicalOrderLeft:
        return Size{16, 12};
    }
    return Size{};
}

Size ArtSizes::sizeOf(int id) const
{
    if (!m_layout.images)
        return Size{};
    const Image* img = m_layout.images->image(id);
    if (!img)
        return Size{};
    if (!m_layout.scaledPorts.isEmpty())
        return m_layout.scaledPorts;
    return shapeSize(img->shape);
}

// ---------------------------------------------------------------------------------------------

std::vector<const PanelLayout*> allLayouts()
{
    std::vector<const PanelLayout*> result;
    for (const auto* table : {&fixedSwitchLayouts(), &chassisLayouts(), &bridgeLayouts(), &accessPointLayouts(),
                              &fiberCardLayouts()})
        for (const PanelLayout& row : *table)
            result.push_back(&row);
    result.push_back(&fiberCrateLayout());
    return result;
}

const PanelLayout* findLayout(const std::string& className)
{
    for (const PanelLayout* row : allLayouts())
        if (className == row->className)
            return row;
    return nullptr;
}

const PanelLayout& layoutNamed(const std::string& className)
{
    if (const PanelLayout* row = findLayout(className))
        return *row;
    static const ImageSet noImages;
    static const PanelLayout none("", Family::FixedSwitch, noImages, {});
    return none;
}

} // namespace layouts
} // namespace velmora
