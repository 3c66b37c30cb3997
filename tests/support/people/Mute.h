#pragma once

#include <QtTest>

/// Keeps the warnings out of the log that the dialog frame causes in every test: images that only the host
/// has, colours that this Qt finds incomplete, and slots that the dialogs do without.
inline void muteFrameWarnings()
{
    static QtMessageHandler next = nullptr;
    next =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            for (const char* start : {"Could not create pixmap from", "QCssParser::parseColorValue",
                                      "QObject::connect: No such slot CQuintarDialog::"})
                if (message.startsWith(start))
                    return;
            next(type, context, message);
        });
}
