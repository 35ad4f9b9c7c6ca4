// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/PictureReadings.h"
#include "platform/RecordingCanvas.h"

#include <QImage>
#include <QMenu>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

namespace quorvex::platform::qt {

// An item that a window adds to the context menu of a picture.
struct PictureCommand {
    QString Name;    // of the action
    QString Caption; // "&" marks the access key
    std::function<void()> Run;
};

// A white box with a thin border that shows a drawing. The drawing is kept until the next one and painted in
// the screen's own resolution. Resting the pointer on it, or moving the cursor with the arrow keys, tells the
// values of a column; its context menu, by mouse, by its key or by Shift+F10, copies and saves the picture
// and does what the window offers besides.
class PictureBox final : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent);

    // Where to draw. Nothing of it shows before ShowDrawing.
    [[nodiscard]] RecordingCanvas& Drawing() { return drawing_; }

    // Makes what was drawn since the last time the picture of the box. Returns whether there was anything.
    bool ShowDrawing();

    // What tool tips and keys tell. The readings must outlive the box or be taken away with nullptr.
    void SetReadings(PictureReadings const* readings) { readings_ = readings; }

    // Lets the context menu save pictures, under this name unless the user types another. Both must outlive
    // the box.
    void OfferSaving(Files& files, Dialogs& dialogs, QString const& suggestedName);

    // Puts these above what the context menu has of its own, in this order.
    void OfferCommands(std::vector<PictureCommand> commands) { commands_ = std::move(commands); }

    [[nodiscard]] QImage const& Picture() const { return picture_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Rasterise();
    void PaintPixels(QPainter& painter) const;
    void PaintCursor(QPainter& painter) const;
    void PaintBorder(QPainter& painter, QRect const& box) const;
    void ShowReading(int column, QPoint place);
    void MoveCursor(int column);
    void ShowMenu(QPoint place);
    void AddCommands(QMenu& menu);
    void AddOwnCommands(QMenu& menu);
    void CopyImage() const;
    void SaveImageAs();
    [[nodiscard]] bool MayWrite(QString const& path);

    RecordingCanvas drawing_{0, 0, Keep::SinceClear};
    int shownClearCount_ = 0;
    QImage picture_;
    PictureReadings const* readings_ = nullptr;
    int cursor_ = 0; // the column under the cursor, 0 without one
    Files* files_ = nullptr;
    Dialogs* dialogs_ = nullptr;
    QString suggestedName_;
    std::vector<PictureCommand> commands_;
};

} // namespace quorvex::platform::qt
