#include "core/appsettings.h"

#include "core/settings.h"

#include <algorithm>

namespace tf {

namespace {

QString grafMenuName(int group) { return QStringLiteral("GrafMenu%1bk").arg(group); }

} // namespace

void AppSettings::setMainRect(const QRect &r)
{
    MainLeft = r.left();
    MainTop = r.top();
    MainWidth = r.width();
    MainHeight = r.height();
}

void AppSettings::load(const SettingsStore &s)
{
    const AppSettings d; // the defaults
    const QString C = QString::fromLatin1(SubKey::Common);
    const QString S = QString::fromLatin1(SubKey::Settings);
    const QString G = QString::fromLatin1(SubKey::Grafic);

    language = s.contains(C, QStringLiteral("Language"))
                   ? languageFromSettingValue(s.Get_Setting(C, QStringLiteral("Language"), 1))
                   : systemLanguage();
    PDirRead = s.Get_Setting(C, QStringLiteral("PDirRead"), d.PDirRead);
    PDirWrite = s.Get_Setting(C, QStringLiteral("PDirWrite"), d.PDirWrite);
    PDirImport = s.Get_Setting(C, QStringLiteral("PDirImport"), d.PDirImport);
    PDirPalet = s.Get_Setting(C, QStringLiteral("PDirPalet"), d.PDirPalet);
    PDirLPath = s.Get_Setting(C, QStringLiteral("PDirLPath"), d.PDirLPath);
    PDirLName = s.Get_Setting(C, QStringLiteral("PDirLName"), d.PDirLName);
    PDirTVP = s.Get_Setting(C, QStringLiteral("PDirTVP"), d.PDirTVP);
    SaveJPQ = std::clamp(s.Get_Setting(C, QStringLiteral("SaveJPQ"), d.SaveJPQ), 1, 100);

    PDirTemp = s.Get_Setting(S, QStringLiteral("PDirTemp"), d.PDirTemp);
    // A program that starts minimized is lost to the user; only maximized is kept.
    MainWState = s.Get_Setting(S, QStringLiteral("MainWState"), d.MainWState) == 2 ? 2 : 0;
    MainLeft = s.Get_Setting(S, QStringLiteral("MainLeft"), d.MainLeft);
    MainTop = s.Get_Setting(S, QStringLiteral("MainTop"), d.MainTop);
    MainWidth = s.Get_Setting(S, QStringLiteral("MainWidth"), d.MainWidth);
    MainHeight = s.Get_Setting(S, QStringLiteral("MainHeight"), d.MainHeight);
    FixNumb = std::clamp(s.Get_Setting(S, QStringLiteral("FixNumb"), d.FixNumb), 0, FixNumbMax);
    FixDelete = s.Get_Setting(S, QStringLiteral("FixDelete"), d.FixDelete);
    ClipDelete = s.Get_Setting(S, QStringLiteral("ClipDelete"), d.ClipDelete);
    DoSinglePic = s.Get_Setting(S, QStringLiteral("DoSinglePic"), d.DoSinglePic);
    DoSubDirs = s.Get_Setting(S, QStringLiteral("DoSubDirs"), d.DoSubDirs);
    Openpreview = s.Get_Setting(S, QStringLiteral("Openpreview"), d.Openpreview);
    initFormat = s.Get_Setting(S, QStringLiteral("initFormat"), d.initFormat);
    initFormatW = s.Get_Setting(S, QStringLiteral("initFormatW"), d.initFormatW);
    initFormatH = s.Get_Setting(S, QStringLiteral("initFormatH"), d.initFormatH);
    imgFormat = s.Get_Setting(S, QStringLiteral("imgFormat"), d.imgFormat);
    imgFormatW = s.Get_Setting(S, QStringLiteral("imgFormatW"), d.imgFormatW);
    imgFormatH = s.Get_Setting(S, QStringLiteral("imgFormatH"), d.imgFormatH);

    for (int g = 1; g <= GroupCount; ++g)
        GrafMenu[size_t(g)] = s.Get_Setting(G, grafMenuName(g), d.GrafMenu[size_t(g)]);
}

void AppSettings::save(SettingsStore &s) const
{
    const QString C = QString::fromLatin1(SubKey::Common);
    const QString S = QString::fromLatin1(SubKey::Settings);
    const QString G = QString::fromLatin1(SubKey::Grafic);

    s.Put_Setting(C, QStringLiteral("Language"), languageSettingValue(language));
    s.Put_Setting(C, QStringLiteral("PDirRead"), PDirRead);
    s.Put_Setting(C, QStringLiteral("PDirWrite"), PDirWrite);
    s.Put_Setting(C, QStringLiteral("PDirImport"), PDirImport);
    s.Put_Setting(C, QStringLiteral("PDirPalet"), PDirPalet);
    s.Put_Setting(C, QStringLiteral("PDirLPath"), PDirLPath);
    s.Put_Setting(C, QStringLiteral("PDirLName"), PDirLName);
    s.Put_Setting(C, QStringLiteral("PDirTVP"), PDirTVP);
    s.Put_Setting(C, QStringLiteral("SaveJPQ"), SaveJPQ);

    s.Put_Setting(S, QStringLiteral("PDirTemp"), PDirTemp);
    s.Put_Setting(S, QStringLiteral("MainWState"), MainWState);
    s.Put_Setting(S, QStringLiteral("MainLeft"), MainLeft);
    s.Put_Setting(S, QStringLiteral("MainTop"), MainTop);
    s.Put_Setting(S, QStringLiteral("MainWidth"), MainWidth);
    s.Put_Setting(S, QStringLiteral("MainHeight"), MainHeight);
    s.Put_Setting(S, QStringLiteral("FixNumb"), FixNumb);
    s.Put_Setting(S, QStringLiteral("FixDelete"), FixDelete);
    s.Put_Setting(S, QStringLiteral("ClipDelete"), ClipDelete);
    s.Put_Setting(S, QStringLiteral("DoSinglePic"), DoSinglePic);
    s.Put_Setting(S, QStringLiteral("DoSubDirs"), DoSubDirs);
    s.Put_Setting(S, QStringLiteral("Openpreview"), Openpreview);
    s.Put_Setting(S, QStringLiteral("initFormat"), initFormat);
    s.Put_Setting(S, QStringLiteral("initFormatW"), initFormatW);
    s.Put_Setting(S, QStringLiteral("initFormatH"), initFormatH);
    s.Put_Setting(S, QStringLiteral("imgFormat"), imgFormat);
    s.Put_Setting(S, QStringLiteral("imgFormatW"), imgFormatW);
    s.Put_Setting(S, QStringLiteral("imgFormatH"), imgFormatH);

    for (int g = 1; g <= GroupCount; ++g)
        s.Put_Setting(G, grafMenuName(g), GrafMenu[size_t(g)]);
}

QRect keepOnScreen(const QRect &window, const QRect &screen)
{
    const int w = std::clamp(window.width(), 1, std::max(1, screen.width()));
    const int h = std::clamp(window.height(), 1, std::max(1, screen.height()));
    const int left = std::clamp(window.left(), screen.left(),
                                std::max(screen.left(), screen.left() + screen.width() - w));
    const int top = std::clamp(window.top(), screen.top(),
                               std::max(screen.top(), screen.top() + screen.height() - h));
    return QRect(left, top, w, h);
}

QRect keepOnScreen(const QRect &window, const QSize &screen)
{
    return keepOnScreen(window, QRect(QPoint(0, 0), screen));
}

std::optional<PicFormat> restoredPicFormat(int initFormat, int initFormatW, int initFormatH)
{
    if (initFormat < 0 || initFormat >= PicFormatEntries || initFormatW < 1 || initFormatH < 1 ||
        initFormatW > PicFormatMaxSide || initFormatH > PicFormatMaxSide)
        return std::nullopt;
    return PicFormat{initFormat, initFormatW, initFormatH};
}

} // namespace tf
