#include "ui/TourExporting.h"

#include "exchange/TourExport.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/ExportPanel.h"
#include "ui/ExportProgress.h"
#include "ui/Sheet.h"
#include "ui/UiLog.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <utility>

namespace ridelog {
namespace {

/// Milliseconds between two looks at what the rider does: often enough for a progress that flows, and for a
/// Cancel that seems to work at once.
constexpr int serviceInterval = 50;
/// Files that are named where there are more.
constexpr std::size_t mostNames = 5;

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

QString folderOf(const QString& path)
{
    return QDir::toNativeSeparators(QFileInfo(path).path());
}

/// The first few, and how many there are beside them.
QString enumerated(const QStringList& texts, const QString& separator)
{
    const auto shown = texts.mid(0, mostNames).join(separator);
    const auto others = texts.size() - static_cast<qsizetype>(mostNames);
    return others <= 0 ? shown : ExportPanel::tr("%1 and %2 more").arg(shown, QLocale().toString(others));
}

/// The formats, with what the rider has chosen by now: a file that takes long is in one unit, whatever is
/// chosen meanwhile.
class FormatsOfNow {
public:
    explicit FormatsOfNow(const Defaults& defaults)
    {
        DefaultsKeys::registerApplicationDefaults(_defaults);
        for (const auto& key : {DefaultsKeys::useMiles, DefaultsKeys::colorAltitude, DefaultsKeys::colorSpeed,
                                DefaultsKeys::colorPulse})
            _defaults.setValue(key, defaults.valueForKey(key));
    }
    FormatsOfNow(const FormatsOfNow&) = delete;
    FormatsOfNow& operator=(const FormatsOfNow&) = delete;

    const ExportFormats& formats() const { return _formats; }

private:
    Defaults _defaults{QString()};
    ExportFormats _formats = exportFormats(_defaults);
};

/// Whether files are being written for any window.
bool isExportingAnywhere()
{
    const auto windows = QApplication::topLevelWidgets();
    return std::ranges::any_of(windows, [](const auto* window) { return isExporting(*window); });
}

/// An export that is laid out, from the questions to the word of what came of it.
class Exporting : public std::enable_shared_from_this<Exporting> {
public:
    Exporting(QWidget& over, Defaults& defaults, std::shared_ptr<const FormatsOfNow> formats,
              TourExport files, TellExported tell)
        : _over(&over),
          _defaults(defaults),
          _formats(std::move(formats)),
          _export(std::move(files)),
          _tell(std::move(tell))
    {
    }

    /// When the panel has gone: it lies over a window that may go as well.
    void begin()
    {
        const bool mustAsk = !_export.existingFiles().empty();
        later([mustAsk](Exporting& self) {
            if (mustAsk)
                self.askToReplace();
            else
                self.write(TourExport::Existing::keep);
        });
    }
    /// The same, for one whose files may be replaced.
    void beginReplacing()
    {
        later([](Exporting& self) { self.write(TourExport::Existing::replace); });
    }

private:
    /// Does this unless the window has gone by then.
    void later(std::function<void(Exporting&)> act)
    {
        QMetaObject::invokeMethod(
            _over.data(), [self = shared_from_this(), act = std::move(act)] { act(*self); },
            Qt::QueuedConnection);
    }
    void askToReplace();
    void write(TourExport::Existing existing);
    TourExport::Outcome writeServingEvents(TourExport::Existing existing);
    QString outcomeText(const TourExport::Outcome& outcome) const;

    QPointer<QWidget> _over;
    Defaults& _defaults;
    std::shared_ptr<const FormatsOfNow> _formats; ///< which the export speaks to
    TourExport _export;
    TellExported _tell;
};

void Exporting::askToReplace()
{
    QStringList names;
    for (const auto& file : _export.existingFiles())
        names << nameOf(file.path);
    const auto folder = folderOf(_export.files().front().path);
    const bool isOne = names.size() == 1;
    auto* sheet =
        new Sheet(_over, QMessageBox::Question,
                  isOne ? ExportPanel::tr("Replace %1?").arg(names.front())
                        : ExportPanel::tr("Replace %Ln file(s)?", nullptr, static_cast<int>(names.size())),
                  isOne ? ExportPanel::tr("It is in %1 already. What it holds is lost then.").arg(folder)
                        : ExportPanel::tr("In %1 there are already %2. What they hold is lost then.")
                              .arg(folder, enumerated(names, QStringLiteral(", "))));
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    const auto* replace = sheet->addButton(ExportPanel::tr("&Replace"), QMessageBox::DestructiveRole);
    sheet->setDefaultButton(sheet->addButton(QMessageBox::Cancel));
    QObject::connect(replace, &QAbstractButton::clicked, sheet,
                     [self = shared_from_this()] { self->beginReplacing(); });
    sheet->open();
}

void Exporting::write(TourExport::Existing existing)
{
    // One inside the other would keep the first from going on.
    if (isExportingAnywhere()) {
        _tell(ExportPanel::tr("Another export is under way. Try again when it has ended."));
        return;
    }
    const auto outcome = writeServingEvents(existing);
    for (const auto& failure : outcome.failures)
        qCWarning(lcUi, "%s was not exported: %s", qPrintable(failure.path), qPrintable(failure.reason));
    if (outcome.written > 0) {
        _defaults.setValue(DefaultsKeys::exportFolder, QFileInfo(_export.files().front().path).path());
        _defaults.synchronize();
    }
    if (_over)
        _tell(outcomeText(outcome));
}

/// The windows live on meanwhile. Whatever ends the event loop ends the export: the rider who cancels it, the
/// window that goes, and the program that is to end, which ends all its loops.
TourExport::Outcome Exporting::writeServingEvents(TourExport::Existing existing)
{
    TourExport::Outcome outcome{.wasStopped = true};
    QEventLoop loop;
    const QPointer progress(new ExportProgress(_over, _export.countTours()));
    QObject::connect(progress, &QDialog::rejected, &loop, &QEventLoop::quit);
    QObject::connect(progress, &QObject::destroyed, &loop, &QEventLoop::quit);
    const auto serve = [&](std::size_t tours) {
        if (progress)
            progress->setTours(tours);
        loop.processEvents();
    };
    QTimer::singleShot(0, &loop, [&] {
        serve(0);
        QElapsedTimer sinceService;
        sinceService.start();
        outcome = _export.write(existing, [&](std::size_t tours) {
            if (sinceService.hasExpired(serviceInterval)) {
                serve(tours);
                sinceService.start();
            }
            return loop.isRunning();
        });
        loop.quit();
    });
    progress->show();
    loop.exec();
    delete progress;
    return outcome;
}

QString Exporting::outcomeText(const TourExport::Outcome& outcome) const
{
    const auto all = static_cast<int>(_export.files().size());
    const auto written = static_cast<int>(outcome.written);
    const auto& first = _export.files().front().path;
    QStringList sentences;
    if (outcome.wasStopped) {
        sentences << (written == 0
                          ? ExportPanel::tr("Export cancelled: nothing was written.")
                          : ExportPanel::tr("Export cancelled: %1 of %Ln file(s) were written.", nullptr, all)
                                .arg(QLocale().toString(written)));
    } else if (outcome.failures.empty()) {
        const auto tours = static_cast<int>(_export.countTours());
        sentences << (all == 1 ? ExportPanel::tr("%Ln tour(s) exported as %1.", "name of a file", tours)
                                     .arg(QDir::toNativeSeparators(first))
                               : ExportPanel::tr("%Ln tour(s) exported to %1.", "name of a folder", tours)
                                     .arg(folderOf(first)));
    } else if (written > 0) {
        sentences << ExportPanel::tr("%Ln file(s) were written.", nullptr, written);
    }
    if (outcome.failures.empty())
        return sentences.front();
    QStringList failures;
    for (const auto& failure : outcome.failures)
        failures << ExportPanel::tr("%1: %2").arg(nameOf(failure.path), failure.reason);
    sentences << ExportPanel::tr("%Ln file(s) could not be written: %1", "list of files and reasons",
                                 static_cast<int>(failures.size()))
                     .arg(enumerated(failures, QStringLiteral("; ")));
    return sentences.join(u' ');
}

} // namespace

void askToExport(QWidget& over, Defaults& defaults, ExportSource source, const Tours& selected,
                 const Tours& all, TellExported tell)
{
    const auto formats = std::make_shared<const FormatsOfNow>(defaults);
    auto* panel = new ExportPanel(&over, defaults, formats->formats(), std::move(source), selected, all);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(
        panel, &QDialog::accepted, &over, [panel, &over, &defaults, formats, tell = std::move(tell)] {
            std::make_shared<Exporting>(over, defaults, formats, panel->tourExport(), tell)->begin();
        });
    panel->open();
}

void askToSaveReport(QWidget& over, Defaults& defaults, ExportSource source, const Tours& tours,
                     TellExported tell)
{
    const auto formats = std::make_shared<const FormatsOfNow>(defaults);
    const auto& format = *formatNamed(formats->formats(), reportFormat);
    const TourExport usual(format, source, tours,
                           defaults.textForKey(DefaultsKeys::exportFolder).value_or(QString()),
                           TourExport::Layout::oneFile);
    auto* panel = new QFileDialog(&over, ExportPanel::tr("Save Report"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setNameFilters({ExportPanel::tr("Reports (*.%1)").arg(format.ending())});
    panel->setDefaultSuffix(format.ending());
    panel->selectFile(usual.files().front().path);
    // It has asked whether what is there may be replaced.
    QObject::connect(
        panel, &QFileDialog::fileSelected, &over,
        [&over, &defaults, formats, &format, source = std::move(source), tours,
         tell = std::move(tell)](const QString& path) {
            auto report = TourExport::toFile(format, source, tours, path);
            std::make_shared<Exporting>(over, defaults, formats, std::move(report), tell)->beginReplacing();
        });
    panel->open();
}

bool isExporting(const QWidget& window)
{
    return window.findChild<ExportProgress*>() != nullptr;
}

} // namespace ridelog
