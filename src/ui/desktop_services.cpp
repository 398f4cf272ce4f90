#include "ui/desktop_services.h"

#include "platform/program_folder.h"
#include "platform/user_folders.h"

namespace vorlane {

DesktopServices::DesktopServices(Prompter& prompts)
    : Prompts(prompts),
      RegistryOnDisk(ConfigFolder().append(u"vorlane/registry.conf")),
      Stored(RegistryOnDisk),
      Verb(Files, Tools, DataFolder()),
      Calls(Stored, Verb),
      Registry(Calls, prompts),
      Settings(Calls),
      Memory(Settings),
      Report({prompts, Clipboard, Files, Time, Settings},
             {ProgramFolder(), StateFolder().append(u"vorlane/")}),
      Sounds(MakeSoundPlayer()) {}

}  // namespace vorlane
