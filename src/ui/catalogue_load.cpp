#include "ui/catalogue_load.h"

#include "catalogue/keyword_list.h"
#include "catalogue/operations_file.h"
#include "platform/interface_texts.h"
#include "platform/vendor.h"

namespace vorlane {

namespace {

void TellMissing(Prompter& prompts, const Text& folder, TextView name) {
  Text message = u"'";
  message.append(folder).append(name).append(u"'");
  message.append(InterfaceText(TextNumber::IsMissing));
  prompts.Show(BoxIcon::Stop, ApplicationTitle, message);
}

}  // namespace

void LoadOperations(Program& program, const ProgramServices& services, const Text& folder) {
  auto tree = LoadOperationsFile(services.Files, folder);
  if (!tree) {
    TellMissing(services.Prompts, folder, OperationsFileName);
    program.Window().Controls().Go->setEnabled(false);
    return;
  }
  const auto failure = tree->Failure;
  program.ShowOperations(*std::move(tree));
  if (failure) {
    services.Report.ReportError(FormName, u"LoadInterfaceElements", u"", *failure);
  }
}

void LoadKeywords(Program& program, const ProgramServices& services, const Text& folder) {
  auto list = LoadKeywordListFile(services.Files, folder);
  if (!list) {
    TellMissing(services.Prompts, folder, KeywordListFileName);
    return;
  }
  const auto failure = list->Failure;
  program.ShowKeywords(*std::move(list));
  if (failure) {
    services.Report.ReportError(FormName, u"LoadKeywordListFromFile", u"", *failure);
  }
}

}  // namespace vorlane
