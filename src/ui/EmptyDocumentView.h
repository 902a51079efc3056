#pragma once

#include <QWidget>

namespace ridelog {

/// Stands in the place of the table while a document has no tours: says how to get some.
class EmptyDocumentView : public QWidget {
    Q_OBJECT

public:
    explicit EmptyDocumentView(QWidget* parent = nullptr);

Q_SIGNALS:
    void connectDeviceRequested();
    void importDumpRequested();
};

} // namespace ridelog
