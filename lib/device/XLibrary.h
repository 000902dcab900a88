#pragma once

#include "../frame/SharedLibrary.h"

// Their macros (None, Bool, Status) break other code, so these stay behind all other headers.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace ORV {

/// The operations of libX11.
class XLibrary : public SharedLibrary {
public:
    decltype(&XAllocColor) allocColor = find("XAllocColor");
    decltype(&XBell) bell = find("XBell");
    decltype(&XChangeGC) changeGC = find("XChangeGC");
    decltype(&XCheckTypedWindowEvent) checkTypedWindowEvent = find("XCheckTypedWindowEvent");
    decltype(&XCheckWindowEvent) checkWindowEvent = find("XCheckWindowEvent");
    decltype(&XClearWindow) clearWindow = find("XClearWindow");
    decltype(&XCloseDisplay) closeDisplay = find("XCloseDisplay");
    decltype(&XCopyArea) copyArea = find("XCopyArea");
    decltype(&XCreateBitmapFromData) createBitmap = find("XCreateBitmapFromData");
    decltype(&XCreateFontCursor) createFontCursor = find("XCreateFontCursor");
    decltype(&XCreateGC) createGC = find("XCreateGC");
    decltype(&XCreateImage) createImage = find("XCreateImage");
    decltype(&XCreatePixmap) createPixmap = find("XCreatePixmap");
    decltype(&XCreateWindow) createWindow = find("XCreateWindow");
    decltype(&XDefineCursor) defineCursor = find("XDefineCursor");
    decltype(&XDestroyWindow) destroyWindow = find("XDestroyWindow");
    decltype(&XDrawLine) drawLine = find("XDrawLine");
    decltype(&XDrawLines) drawLines = find("XDrawLines");
    decltype(&XDrawString) drawString = find("XDrawString");
    decltype(&XFetchName) fetchName = find("XFetchName");
    decltype(&XFillPolygon) fillPolygon = find("XFillPolygon");
    decltype(&XFillRectangle) fillRectangle = find("XFillRectangle");
    decltype(&XFlush) flush = find("XFlush");
    decltype(&XFree) free = find("XFree");
    decltype(&XFreeCursor) freeCursor = find("XFreeCursor");
    decltype(&XFreeFont) freeFont = find("XFreeFont");
    decltype(&XFreeFontNames) freeFontNames = find("XFreeFontNames");
    decltype(&XFreeGC) freeGC = find("XFreeGC");
    decltype(&XFreePixmap) freePixmap = find("XFreePixmap");
    decltype(&XGetErrorDatabaseText) getErrorDatabaseText = find("XGetErrorDatabaseText");
    decltype(&XGetErrorText) getErrorText = find("XGetErrorText");
    decltype(&XGetGeometry) getGeometry = find("XGetGeometry");
    decltype(&XGetImage) getImage = find("XGetImage");
    decltype(&XInternAtom) internAtom = find("XInternAtom");
    decltype(&XListFonts) listFonts = find("XListFonts");
    decltype(&XLoadQueryFont) loadQueryFont = find("XLoadQueryFont");
    decltype(&XLookupString) lookupString = find("XLookupString");
    decltype(&XMapWindow) mapWindow = find("XMapWindow");
    decltype(&XNextEvent) nextEvent = find("XNextEvent");
    decltype(&XOpenDisplay) openDisplay = find("XOpenDisplay");
    decltype(&XParseColor) parseColor = find("XParseColor");
    decltype(&XPending) pending = find("XPending");
    decltype(&XPutImage) putImage = find("XPutImage");
    decltype(&XQueryPointer) queryPointer = find("XQueryPointer");
    decltype(&XRefreshKeyboardMapping) refreshKeyboardMapping = find("XRefreshKeyboardMapping");
    decltype(&XResizeWindow) resizeWindow = find("XResizeWindow");
    decltype(&XSetClassHint) setClassHint = find("XSetClassHint");
    decltype(&XSetClipMask) setClipMask = find("XSetClipMask");
    decltype(&XSetClipOrigin) setClipOrigin = find("XSetClipOrigin");
    decltype(&XSetClipRectangles) setClipRectangles = find("XSetClipRectangles");
    decltype(&XSetDashes) setDashes = find("XSetDashes");
    decltype(&XSetErrorHandler) setErrorHandler = find("XSetErrorHandler");
    decltype(&XSetForeground) setForeground = find("XSetForeground");
    decltype(&XSetFont) setFont = find("XSetFont");
    decltype(&XSetIOErrorHandler) setIOErrorHandler = find("XSetIOErrorHandler");
    decltype(&XSetIconName) setIconName = find("XSetIconName");
    decltype(&XSetStandardProperties) setStandardProperties = find("XSetStandardProperties");
    decltype(&XSetWMHints) setWMHints = find("XSetWMHints");
    decltype(&XSetWMProtocols) setWMProtocols = find("XSetWMProtocols");
    decltype(&XStoreName) storeName = find("XStoreName");
    decltype(&XSync) sync = find("XSync");
    decltype(&XTextWidth) textWidth = find("XTextWidth");

    static const XLibrary& get() {
        static const XLibrary library;
        return library;
    }

private:
    XLibrary() : SharedLibrary("libX11.so.6") {}
};

} // namespace ORV
