// velmora-artgen: draws every image of the module's resource tree from the panels' layout
// rows and writes the .qrc that lists them.
//
//   velmora-artgen --out <dir> --qrc <file> [--expect <list>]
//
// Files go to <dir>/<resource path>, e.g. <dir>/Tarvex7300/Velmora/Images/SwitchDevice/x.png.
// Every PNG gets a twin drawn at twice the density from the same tables, x@2x.png beside it,
// for dense screens; SVGs are drawn at any density from their vector form.
// With --expect, the list of resource paths the build expects (one per line, without ":/")
// must equal the set drawn; a difference is an error, so the build and the tables can't drift.
// The output is deterministic: the same tables give the same bytes.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>
#include <QTextStream>
#include <cstdio>
#include <unistd.h>
#include <map>
#include <set>

#include "FrameArt.h"
#include "PortArt.h"

using namespace velmora::layouts;

namespace {

// What to draw for one resource path.
struct Job {
    enum Kind { Raster, Svg, FrameImage } kind = Raster;
    Shape shape = Shape::Frame;
    PortState state = PortState::None;
    bool bridgeLook = false;
    std::vector<artgen::FrameUse> uses;
};

// Resource path without ":/".
QString resourceKey(const std::string& path)
{
    return QString::fromStdString(resourcePath(path)).mid(2);
}

bool addImage(std::map<QString, Job>& jobs, const Image& image, bool bridgeLook)
{
    const QString key = resourceKey(image.path);
    Job job;
    job.kind = key.endsWith(QLatin1String(".svg")) ? Job::Svg : Job::Raster;
    job.shape = image.shape;
    job.state = image.state;
    job.bridgeLook = bridgeLook;
    auto it = jobs.find(key);
    if (it == jobs.end()) {
        jobs.emplace(key, job);
        return true;
    }
    if (it->second.shape != job.shape || it->second.state != job.state) {
        std::fprintf(stderr, "velmora-artgen: %s is named with two different looks\n", qPrintable(key));
        return false;
    }
    return true;
}

bool collect(std::map<QString, Job>& jobs)
{
    bool ok = true;
    for (const PanelLayout* row : allLayouts()) {
        for (const Frame& frame : row->frames) {
            Job& job = jobs[resourceKey(frame.path)];
            job.kind = Job::FrameImage;
            job.uses.push_back(artgen::FrameUse{row, frame});
        }
        for (const Image& image : row->images->images)
            ok = addImage(jobs, image, false) && ok;
    }
    for (const LogicalImages& set : logicalPanelImages()) {
        const bool bridge = set.categories.size() == 1 && set.categories.front() == 121;
        for (const Image& image : set.images)
            ok = addImage(jobs, image, bridge) && ok;
    }
    for (const Image& image : otherImages())
        ok = addImage(jobs, image, false) && ok;
    return ok;
}

bool writeBytes(const QString& fileName, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(fileName).absolutePath());
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(bytes);
    return file.commit();
}

// The name of the twin drawn at density 2: "x@2x.png" for "x.png".
QString twinName(const QString& fileName)
{
    return fileName.left(fileName.size() - 4) + QStringLiteral("@2x.png");
}

bool writeImage(const QString& fileName, QImage image)
{
    QDir().mkpath(QFileInfo(fileName).absolutePath());
    // Fixed resolution, so that the bytes do not depend on the screen.
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    return image.convertToFormat(QImage::Format_ARGB32).save(fileName, "PNG");
}

QString xmlEscaped(const QString& text)
{
    return text.toHtmlEscaped();
}

int usage()
{
    std::fprintf(stderr, "usage: velmora-artgen --out <dir> --qrc <file> [--expect <list>]\n");
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Build machines often have no session runtime folder; Qt wants one, private to the user.
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        const QString runtime = QDir::tempPath() + QStringLiteral("/velmora-artgen-runtime-") +
                                QString::number(static_cast<qulonglong>(getuid()));
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", runtime.toLocal8Bit());
    }
    QGuiApplication app(argc, argv);

    QString outDir;
    QString qrcFile;
    QString expectFile;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (i + 1 >= args.size())
            return usage();
        if (arg == QLatin1String("--out"))
            outDir = args.at(++i);
        else if (arg == QLatin1String("--qrc"))
            qrcFile = args.at(++i);
        else if (arg == QLatin1String("--expect"))
            expectFile = args.at(++i);
        else
            return usage();
    }
    if (outDir.isEmpty() || qrcFile.isEmpty())
        return usage();

    std::map<QString, Job> jobs;
    if (!collect(jobs))
        return 1;

    if (!expectFile.isEmpty()) {
        QFile list(expectFile);
        if (!list.open(QIODevice::ReadOnly | QIODevice::Text)) {
            std::fprintf(stderr, "velmora-artgen: cannot read %s\n", qPrintable(expectFile));
            return 1;
        }
        std::set<QString> expected;
        QTextStream in(&list);
        in.setCodec("UTF-8");
        while (!in.atEnd()) {
            const QString line = in.readLine();
            if (!line.isEmpty())
                expected.insert(line);
        }
        bool same = true;
        for (const auto& entry : jobs)
            if (!expected.count(entry.first)) {
                std::fprintf(stderr, "velmora-artgen: drawn but not expected by the build: %s\n", qPrintable(entry.first));
                same = false;
            }
        for (const QString& path : expected)
            if (!jobs.count(path)) {
                std::fprintf(stderr, "velmora-artgen: expected by the build but not drawn: %s\n", qPrintable(path));
                same = false;
            }
        if (!same)
            return 1;
    }

    const QDir out(outDir);
    for (const auto& entry : jobs) {
        const QString fileName = out.filePath(entry.first);
        const Job& job = entry.second;
        bool written = false;
        switch (job.kind) {
        case Job::FrameImage:
            written = writeImage(fileName, artgen::drawFrame(job.uses)) &&
                      writeImage(twinName(fileName), artgen::drawFrame(job.uses, 2));
            break;
        case Job::Raster:
            written = writeImage(fileName, artgen::drawImage(job.shape, job.state)) &&
                      writeImage(twinName(fileName), artgen::drawImage(job.shape, job.state, 2));
            break;
        case Job::Svg:
            written = writeBytes(fileName, artgen::drawSvg(job.shape, job.state, job.bridgeLook));
            break;
        }
        if (!written) {
            std::fprintf(stderr, "velmora-artgen: cannot write %s\n", qPrintable(fileName));
            return 1;
        }
    }

    // The resource file: every image under its resource path.
    const QDir qrcDir = QFileInfo(qrcFile).absoluteDir();
    QByteArray qrc = "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n<qresource prefix=\"/\">\n";
    for (const auto& entry : jobs) {
        QStringList keys = {entry.first};
        if (entry.second.kind != Job::Svg)
            keys << twinName(entry.first);
        for (const QString& key : keys) {
            const QString file = qrcDir.relativeFilePath(out.absoluteFilePath(key));
            qrc += QStringLiteral("  <file alias=\"%1\">%2</file>\n").arg(xmlEscaped(key), xmlEscaped(file)).toUtf8();
        }
    }
    qrc += "</qresource>\n</RCC>\n";
    if (!writeBytes(qrcFile, qrc)) {
        std::fprintf(stderr, "velmora-artgen: cannot write %s\n", qPrintable(qrcFile));
        return 1;
    }
    return 0;
}
