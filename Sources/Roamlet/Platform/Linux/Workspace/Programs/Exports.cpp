// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/DetachedProcess.h"
#include "Platform/Linux/Workspace/GLibPointer.h"
#include "Platform/Linux/Workspace/Programs/XdoBrowserWindows.h"
#include "Platform/Linux/Workspace/ProgramsModule.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

namespace roamlet::ProgramsModule
{

namespace
{

struct ObjectDeleter {
    void operator()(gpointer object) const { g_object_unref(object); }
};
struct ListDeleter {
    void operator()(GList *list) const { g_list_free(list); }
};
using AppInfo = std::unique_ptr<GAppInfo, ObjectDeleter>;

int launch(const AppInfo &info, const char *const *urls, const char *activationToken,
           void (*prepareChild)(void *))
{
    if (!info || G_IS_DESKTOP_APP_INFO(info.get()) == FALSE)
        return 0;
    GList *list = nullptr;
    for (; *urls != nullptr; ++urls)
        list = g_list_append(list, const_cast<char *>(*urls));
    const std::unique_ptr<GList, ListDeleter> owner(list);
    const std::unique_ptr<GAppLaunchContext, ObjectDeleter> context(g_app_launch_context_new());
    if (*activationToken != '\0')
        g_app_launch_context_setenv(context.get(), DetachedProcess::tokenVariable, activationToken);
    return g_desktop_app_info_launch_uris_as_manager(G_DESKTOP_APP_INFO(info.get()), list, context.get(),
                                                     spawnFlags, prepareChild, nullptr, nullptr, nullptr,
                                                     nullptr);
}

} // namespace

} // namespace roamlet::ProgramsModule

extern "C" {

Q_DECL_EXPORT int roamletLaunchEntry(const char *path, const char *const *urls, const char *activationToken,
                                     void (*prepareChild)(void *))
{
    using namespace roamlet::ProgramsModule;
    GDesktopAppInfo *const info = g_desktop_app_info_new_from_filename(path);
    return launch(AppInfo(info != nullptr ? G_APP_INFO(info) : nullptr), urls, activationToken, prepareChild);
}

Q_DECL_EXPORT int roamletLaunchPreferred(const char *type, const char *const *urls,
                                         const char *activationToken, void (*prepareChild)(void *))
{
    using namespace roamlet::ProgramsModule;
    return launch(AppInfo(g_app_info_get_default_for_type(type, FALSE)), urls, activationToken, prepareChild);
}

Q_DECL_EXPORT roamlet::BrowserWindows *ROAMLET_BROWSER_WINDOWS_ENTRY(const QByteArray *display)
{
    return new roamlet::XdoBrowserWindows(*display);
}
}
