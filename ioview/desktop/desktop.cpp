#include "ioview/desktop/desktop.h"

#include <QtCore/qmetaobject.h>

#include <cstdint>
#include <cstdio>
#include <string_view>
#include <utility>

#include "ioview/component/open_definition.h"
#include "ioview/component/open_workspace.h"
#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "platform/base/app.h"
#include "platform/base/message_box.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

// For the user, and for whoever started the program.
void Tell(const std::string& text) {
  std::fprintf(stderr, "ioview: %s\n", OneLine(text).c_str());
  platform::MessageBox(text, platform::MB_ICONEXCLAMATION);
}

// A stored path with the workspace's directories in it, as far as this host has placeholders for them.
std::string WithDirectories(std::string path, const Workspace& workspace) {
  const auto join = [](const std::string& directory, const std::string& name) {
    return directory + (directory.ends_with('\\') ? "" : "\\") + name;
  };
  const std::string project = join(workspace.directory, workspace.project);
  const std::pair<std::string_view, std::string> directories[] = {
      {"$(WORKSPDIR)", workspace.directory},
      {"$(PROJDIR)", project},
      {"$(CONFIGDIR)", join(project, workspace.configuration)},
  };
  for (const auto& [placeholder, directory] : directories) {
    if (path.starts_with(placeholder)) path.replace(0, placeholder.size(), directory);
  }
  return path;
}

}  // namespace

Desktop::Desktop(const ComponentLibrary& library, Places places)
    : library_(library),
      places_(std::move(places)),
      definition_(DrivePathOf(places_.definition)),
      session_file_(SessionFileOf(places_.workspace)),
      settings_(places_.settings_file.empty() ? SettingsContents()
                                              : LoadSettingsFile(places_.settings_file, notes_)),
      instance_(library, settings_.settings) {
  HostServices& host = instance_.host;
  host.workspace = OpenWorkspace(places_.workspace);
  host.session_values = LoadSessionFile(session_file_, notes_);
  for (const CustomPlaceholder& placeholder : settings_.global_placeholders) {
    host.placeholders.SetGlobal(placeholder);
  }
  saved_session_ = host.session_values.Changes();
  saved_settings_ = settings_.settings.Changes();
  saved_layout_ = settings_.window_layout;

  platform::SetDisplay(&display_);
  window_ = std::make_unique<MainWindow>(
      instance_, MainWindow::Program{[this] { Save(); }, [this] { SaveSession(true), SaveSettings(true); },
                                     [this] { SaveSettings(true); }, [this] { return About(); }});
  display_.SetContainer([this](const platform::CWnd& window) {
    return &window == &main_ ? window_->HiddenRoom() : window_->ContainerOf(window);
  });
  platform::CreateParams params;
  params.style = platform::WS_VISIBLE;
  main_.Create(params);
  platform::SetMainWindow(main_.GetHandle());
}

Desktop::~Desktop() {
  instance_.Destroy();
  while (!instance_.host.ui.Docks().empty()) {
    instance_.host.ui.DestroyDock(instance_.host.ui.Docks().back()->GetHandle());
  }
  // The panes have left their column widths.
  SaveSettings(false);
  platform::SetMainWindow(0);
  main_.DestroyWindow();
  window_.reset();
  platform::SetDisplay(nullptr);
}

bool Desktop::Open(bool demo) {
  HostServices& host = instance_.host;
  const bool of_device = OfferDefinition(host, definition_);
  const bool other = of_device && HasOtherDefinition();

  std::uint32_t base = 0;
  host.device.GetBaseAddress(&base);
  DemoDevice& device_at_work = window_->Target().demo;
  if (DemoDevice::IsExample(ReadWholeFile(places_.definition))) {
    device_at_work.SetExample(base != 0 ? base : DemoDevice::kExampleBase);
  }
  device_at_work.Switch(demo);

  // The window is there before anything that the component has to say about the file.
  const WindowLayout layout = WindowLayout::FromBytes(settings_.window_layout);
  window_->setWindowTitle(QString::fromStdString(places_.workspace) + QStringLiteral(" - ioview"));
  window_->restoreGeometry(layout.geometry);
  window_->show();
  window_->activateWindow();

  if (platform::Failed(instance_.Start(true))) return false;
  window_->Target().SetConnected(true);
  if (const DockWindow* view = instance_.View(); view == nullptr || !view->is_shown) {
    Instance::RunCommand(kOpenViewCommand, instance_.Frame());
  }
  if (other) instance_.LoadIOFile(definition_, base);
  window_->SyncNow();
  window_->SetLayout(layout);
  window_->FocusPage();

  if (!notes_.lines.empty()) {
    QMetaObject::invokeMethod(
        window_.get(),
        [notes = std::exchange(notes_.lines, {})] {
          std::string text;
          for (const std::string& line : notes) {
            std::fprintf(stderr, "ioview: %s\n", OneLine(line).c_str());
            text += (text.empty() ? "" : "\n") + line;
          }
          platform::MessageBox(text, platform::MB_ICONEXCLAMATION);
        },
        Qt::QueuedConnection);
  }
  return true;
}

bool Desktop::HasOtherDefinition() const {
  const std::string stored = StoredDefinition(instance_.host);
  return !stored.empty() &&
         !platform::EqualNoCase(WithDirectories(stored, instance_.host.workspace), definition_);
}

// Saving -------------------------------------------------------------------------------------------------

void Desktop::Save() {
  SaveSession(false);
  SaveSettings(true);
}

void Desktop::SaveSession(bool always) {
  if (always || instance_.IsSessionDirty()) instance_.SaveSession();
  const SessionValues& values = instance_.host.session_values;
  if (values.Changes() == saved_session_) return;
  std::string why;
  if (SaveSessionFile(session_file_, values, why)) {
    saved_session_ = values.Changes();
  } else {
    Tell(why);
  }
}

// A window that has closed has no layout any more, and what couldn't be written when it did has been told.
void Desktop::SaveSettings(bool of_window) {
  if (places_.settings_file.empty()) return;
  if (of_window) settings_.window_layout = window_->GetLayout().ToBytes();
  if (settings_.settings.Changes() == saved_settings_ && settings_.window_layout == saved_layout_) return;
  std::string why;
  if (SaveSettingsFile(places_.settings_file, settings_, why)) {
    saved_settings_ = settings_.settings.Changes();
    saved_layout_ = settings_.window_layout;
  } else if (of_window) {
    Tell(why);
  }
}

std::string Desktop::About() const {
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
  library_.GetComponentVersion(&major, &minor);
  return "ioview shows the I/O registers of a device as its definition file describes them.\n\nComponent: " +
         library_.Name() + ' ' + std::to_string(major) + '.' + std::to_string(minor);
}

}  // namespace ioview
