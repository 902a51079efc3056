#include "tests/support/Desktop.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>

#include <csignal>
#include <sys/prctl.h>

namespace ridelog {
namespace {

/// What the server's picture begins with: numbers of 32 bits, the most significant byte first.
enum Field : qsizetype { sizeOfHeader = 0, width = 4, height = 5, bytesPerLine = 12, colours = 19 };
constexpr qsizetype sizeOfColour = 12;

} // namespace

void endWithTest(QProcess& process)
{
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

QStringList Desktop::missing()
{
    QStringList programs{QStringLiteral("Xvfb"), QStringLiteral("openbox"), QStringLiteral("xdotool")};
    programs.removeIf([](const QString& name) { return !QStandardPaths::findExecutable(name).isEmpty(); });
    return programs;
}

Desktop::Desktop(const QString& folder) : _folder(folder)
{
    const auto set = [this](const char* name, const QString& value) {
        _environment.insert(QString::fromLatin1(name), value);
    };
    set("PATH", qEnvironmentVariable("PATH"));
    set("LC_ALL", QStringLiteral("C.UTF-8"));
    set("TZ", QStringLiteral("UTC"));
    set("QT_QPA_PLATFORM", QStringLiteral("xcb"));
    set("DBUS_SESSION_BUS_ADDRESS", QStringLiteral("disabled:"));
    for (const auto* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        set(name, _folder);
    set("FONTCONFIG_FILE", QStringLiteral(RIDELOG_SOURCE "/tests/support/fonts.conf"));
    endWithTest(_server);
    endWithTest(_windowManager);
}

Desktop::~Desktop()
{
    for (auto* process : {&_windowManager, &_server}) {
        process->terminate();
        process->waitForFinished();
    }
}

bool Desktop::start()
{
    _server.setProcessEnvironment(_environment);
    // It looks for a free display itself and says which one it is.
    _server.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
                   QStringLiteral("-fbdir"), _folder, QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                   QStringLiteral("-noreset")});
    if (!eventually([this] { return _server.canReadLine(); }))
        return false;
    _environment.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(_server.readLine().trimmed()));
    _windowManager.setProcessEnvironment(_environment);
    _windowManager.start(QStringLiteral("openbox"), {});
    return eventually([this] { return !tell({QStringLiteral("get_num_desktops")}).isEmpty(); });
}

/// Answers what xdotool says, nothing if it cannot do that.
QString Desktop::tell(const QStringList& words)
{
    QProcess tool;
    tool.setProcessEnvironment(_environment);
    tool.start(QStringLiteral("xdotool"), words);
    if (!tool.waitForFinished() || tool.exitCode() != 0)
        return {};
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

// Keys and mouse

void Desktop::press(const char* keys)
{
    tell({QStringLiteral("key"), QString::fromLatin1(keys)});
}

void Desktop::type(const char* text)
{
    tell({QStringLiteral("type"), QString::fromLatin1(text)});
}

void Desktop::click(QPoint place)
{
    moveMouseTo(frame().topLeft() + place);
    tell({QStringLiteral("click"), QStringLiteral("1")});
}

// The window in front

QString Desktop::title()
{
    // What the window manager calls active and where the keys go may differ for a moment.
    const auto active = tell({QStringLiteral("getactivewindow")});
    if (active.isEmpty() || tell({QStringLiteral("getwindowfocus"), QStringLiteral("-f")}) != active)
        return {};
    return tell({QStringLiteral("getwindowname"), active});
}

QRect Desktop::frame()
{
    // Where the window says it is does not count its title bar in the same way everywhere; the mouse knows.
    const auto facts = tell({QStringLiteral("getactivewindow"), QStringLiteral("mousemove"),
                             QStringLiteral("--window"), QStringLiteral("%1"), QStringLiteral("0"),
                             QStringLiteral("0"), QStringLiteral("getmouselocation"),
                             QStringLiteral("--shell"), QStringLiteral("getactivewindow"),
                             QStringLiteral("getwindowgeometry"), QStringLiteral("--shell")})
                           .split(u'\n');
    const auto first = [&facts](const QString& name) {
        const auto found = facts.filter(QRegularExpression(u'^' + name));
        return found.isEmpty() ? -1 : found.first().section(u'=', 1).toInt();
    };
    return {first(QStringLiteral("X=")), first(QStringLiteral("Y=")), first(QStringLiteral("WIDTH=")),
            first(QStringLiteral("HEIGHT="))};
}

void Desktop::setFrame(const QRect& frame)
{
    tell({QStringLiteral("getactivewindow"), QStringLiteral("windowmove"), QString::number(frame.x()),
          QString::number(frame.y()), QStringLiteral("windowsize"), QString::number(frame.width()),
          QString::number(frame.height())});
}

// The screen

void Desktop::moveMouseTo(QPoint place)
{
    tell({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

QImage Desktop::picture() const
{
    QFile file(_folder + QStringLiteral("/Xvfb_screen0"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto memory = file.readAll();
    const auto field = [&memory](Field name) {
        return qFromBigEndian<quint32>(memory.constData() + name * 4);
    };
    const auto pixels = field(sizeOfHeader) + field(colours) * sizeOfColour;
    return QImage(reinterpret_cast<const uchar*>(memory.constData()) + pixels, static_cast<int>(field(width)),
                  static_cast<int>(field(height)), field(bytesPerLine), QImage::Format_RGB32)
        .copy();
}

} // namespace ridelog
