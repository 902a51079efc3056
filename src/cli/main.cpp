#include "cli/Command.h"
#include "cli/CommandLine.h"
#include "platform/Languages.h"
#include "platform/Log.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringDecoder>

#include <csignal>
#include <fcntl.h>
#include <memory>

namespace {

/// A standard stream that the caller has closed must not become the next file that is opened: its place is
/// taken by something that neither side can use.
void occupyClosedStreams()
{
    for (int stream = 0; stream <= 2; ++stream) {
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
    }
}

/// File names are texts here; one that is no UTF-8 would be taken for another.
bool isUtf8(const char* word)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(word);
    return !decoder.hasError();
}

/// Pictures need fonts, but no screen. The toolkit has words of its own, which are none of ours: it sees only
/// the program's name.
std::unique_ptr<QCoreApplication> applicationFor(const QStringList& words, char* argv[])
{
    static int nameOnly = 1;
    const auto* command = words.size() > 1 ? ridelog::commandNamed(words[1]) : nullptr;
    if (!command || !command->drawsPictures())
        return std::make_unique<QCoreApplication>(nameOnly, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(nameOnly, argv);
}

} // namespace

int main(int argc, char* argv[])
{
    occupyClosedStreams();
    // A file beyond the size that is allowed is an error like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    // Before the toolkit starts, so that it is as quiet as the application.
    ridelog::setLogLevel(ridelog::LogLevel::none);
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words << QString::fromUtf8(argv[i]);
    const auto application = applicationFor(words, argv);
    ridelog::speakLanguageOf(QLocale());
    for (int i = 1; i < argc; ++i) {
        if (!isUtf8(argv[i])) {
            const auto status = ridelog::wrongWords(QStringLiteral("'%1' is not UTF-8").arg(words[i]));
            return static_cast<int>(status);
        }
    }
    return static_cast<int>(ridelog::runCommandLine(words));
}
