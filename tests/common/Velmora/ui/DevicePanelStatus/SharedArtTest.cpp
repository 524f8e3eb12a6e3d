// The panels' art is decoded once and shared: a second panel of a model draws the pixmaps of
// the first, the pictures are those a fresh load gives, a changed copy leaves the kept image
// alone, and images outside the module's compiled-in art are read again at every call.
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

#include "PanelTestAccess.h"

namespace velmora {
namespace {

using namespace layouts;
using A = PanelTestAccess;

const QString kPortImage =
    QStringLiteral(":/Tarvex7300/Velmora/Images/SwitchDevice/port_electrical_positive_unconnected.png");

class SharedArtTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
    void SetUp() override { dropSharedArt(); }
    void TearDown() override { dropSharedArt(); }
};

std::unique_ptr<CPanelStatusBase> panelOf(const std::string& className)
{
    const PanelLayout* layout = findLayout(className);
    const int mode = layout && !layout->modes().empty() ? layout->modes().front() : 0;
    return std::unique_ptr<CPanelStatusBase>(createPanel(className, mode, nullptr));
}

// A fixed panel whose port images are scaled to a size of its table row, when there is one.
const PanelLayout* scaledLayout()
{
    for (const PanelLayout* row : allLayouts()) {
        if (row->family != Family::FiberCrate && row->family != Family::Chassis && !row->scaledPorts.isEmpty())
            return row;
    }
    return nullptr;
}

TEST_F(SharedArtTest, ASecondPanelOfTheModelDrawsTheFirstPanelsPixmaps)
{
    auto first = panelOf("CQ129SwitchPanel");
    ASSERT_TRUE(first);
    const int kept = sharedArtCount();
    EXPECT_GT(kept, 0);
    auto second = panelOf("CQ129SwitchPanel");
    ASSERT_TRUE(second);
    EXPECT_EQ(sharedArtCount(), kept);
    ASSERT_EQ(A::pixmaps(first.get()).size(), A::pixmaps(second.get()).size());
    for (const auto& [id, pixmap] : A::pixmaps(first.get())) {
        ASSERT_TRUE(pixmap);
        const QPixmap* other = A::pixmaps(second.get()).at(id);
        ASSERT_TRUE(other);
        EXPECT_FALSE(pixmap->isNull()) << "image " << id;
        EXPECT_EQ(pixmap->cacheKey(), other->cacheKey()) << "image " << id;
    }
}

TEST_F(SharedArtTest, APanelDrawnFromKeptImagesLooksLikeOneDrawnFromFreshLoads)
{
    const std::vector<std::string> classes = {"CQ129SwitchPanel", scaledLayout() ? scaledLayout()->className : ""};
    for (const std::string& className : classes) {
        if (className.empty())
            continue;
        SCOPED_TRACE(className);
        dropSharedArt();
        auto fresh = panelOf(className);
        ASSERT_TRUE(fresh);
        const QImage freshImage = paneltest::render(fresh.get());
        auto shared = panelOf(className);
        ASSERT_TRUE(shared);
        EXPECT_EQ(paneltest::render(shared.get()), freshImage);
    }
}

TEST_F(SharedArtTest, AKeptImageIsTheImageALoadGives)
{
    EXPECT_EQ(sharedArt(kPortImage).toImage(), loadArt(kPortImage).toImage());
    const QSize size(10, 7);
    const QPixmap scaled = sharedArt(kPortImage, size);
    EXPECT_EQ(logicalSize(scaled), size);
    EXPECT_EQ(scaled.devicePixelRatio(), loadArt(kPortImage).devicePixelRatio());
}

TEST_F(SharedArtTest, EachSizeOfAnImageIsKeptApart)
{
    const QPixmap natural = sharedArt(kPortImage);
    const QPixmap small = sharedArt(kPortImage, QSize(6, 4));
    EXPECT_EQ(sharedArtCount(), 2);
    EXPECT_NE(natural.size(), small.size());
    EXPECT_EQ(sharedArt(kPortImage).cacheKey(), natural.cacheKey());
    EXPECT_EQ(sharedArt(kPortImage, QSize(6, 4)).cacheKey(), small.cacheKey());
}

TEST_F(SharedArtTest, ChangingACopyLeavesTheKeptImageAsItWas)
{
    const QImage before = sharedArt(kPortImage).toImage();
    QPixmap copy = sharedArt(kPortImage);
    copy.fill(Qt::magenta);
    EXPECT_EQ(sharedArt(kPortImage).toImage(), before);
    EXPECT_NE(copy.toImage(), before);
}

TEST_F(SharedArtTest, AnImageThatDoesNotLoadIsNotKept)
{
    EXPECT_TRUE(sharedArt(QStringLiteral(":/Tarvex7300/Velmora/Images/NoSuchImage.png")).isNull());
    EXPECT_EQ(sharedArtCount(), 0);
}

TEST_F(SharedArtTest, AFileOutsideTheModulesArtIsReadAgainAtEveryCall)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("port.png");
    QImage red(4, 3, QImage::Format_ARGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(path, "PNG"));
    const QPixmap first = sharedArt(path);
    EXPECT_EQ(first.size(), QSize(4, 3));
    EXPECT_EQ(first.toImage().pixelColor(0, 0), QColor(Qt::red));

    QImage blue(5, 2, QImage::Format_ARGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(blue.save(path, "PNG"));
    const QPixmap second = sharedArt(path);
    EXPECT_EQ(second.size(), QSize(5, 2));
    EXPECT_EQ(second.toImage().pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(sharedArtCount(), 0);
}

TEST_F(SharedArtTest, DroppingTheKeptImagesMakesTheNextPanelLoadThemAgain)
{
    auto first = panelOf("CQ129SwitchPanel");
    ASSERT_TRUE(first);
    const int kept = sharedArtCount();
    const QImage drawn = paneltest::render(first.get());
    dropSharedArt();
    EXPECT_EQ(sharedArtCount(), 0);
    auto second = panelOf("CQ129SwitchPanel");
    ASSERT_TRUE(second);
    EXPECT_EQ(sharedArtCount(), kept);
    // The first panel keeps drawing what it had.
    EXPECT_EQ(paneltest::render(first.get()), drawn);
}

} // namespace
} // namespace velmora
