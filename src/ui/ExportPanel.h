#pragma once

#include "exchange/TourExport.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QFormLayout;
class QPushButton;
QT_END_NAMESPACE

namespace ridelog {

class Defaults;
class ElidedLabel;
class FolderField;

/// Asks which tours are to be exported, in which format and where, and says what files that makes. What was
/// chosen is offered the next time; a folder only if files were written there.
class ExportPanel : public QDialog {
    Q_OBJECT

public:
    /// Offers all tours, of which there is one at least, and the selected ones, unless these are none or all.
    /// Formats and defaults have to outlive it.
    ExportPanel(QWidget* over, Defaults& defaults, const ExportFormats& formats, ExportSource source,
                const Tours& selected, const Tours& all);

    /// What is chosen. Lives as long as the formats.
    TourExport tourExport() const;

    // What it is made of

    QComboBox& tours() { return *_tours; }
    QComboBox& format() { return *_format; }
    FolderField& folder() { return *_folder; }
    QPushButton& chooseButton() { return *_chooseButton; }
    QCheckBox& together() { return *_together; }
    /// What will be written, or why nothing can be.
    QString outcome() const;
    QPushButton& exportButton() { return *_exportButton; }

public Q_SLOTS:
    void accept() override;

private:
    void addTours(QFormLayout& form, const Tours& selected, const Tours& all);
    void addFormats(QFormLayout& form, const ExportFormats& formats);
    void addFolder(QFormLayout& form);
    void addTogether(QFormLayout& form);
    void addButtons(QFormLayout& form);
    void chooseFolder();
    void showOutcome();
    QString files() const;
    const Tours& chosenTours() const;
    const ExportFormat& chosenFormat() const;
    bool mayChooseTogether() const;
    bool isTogether() const;

    Defaults& _defaults;
    const ExportFormats& _formats;
    ExportSource _source;
    std::vector<Tours> _choices; ///< in the order in which they are offered
    bool _wantsTogether;         ///< where the format leaves that choice

    QComboBox* _tours = nullptr;
    QComboBox* _format = nullptr;
    FolderField* _folder = nullptr;
    QPushButton* _chooseButton = nullptr;
    QCheckBox* _together = nullptr;
    ElidedLabel* _outcome = nullptr;
    QPushButton* _exportButton = nullptr;
};

} // namespace ridelog
