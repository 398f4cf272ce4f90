#include "shell/error_log.h"

#include "batch/file_routines.h"
#include "platform/code_page.h"
#include "platform/interface_texts.h"
#include "platform/program_version.h"
#include "shell/stored_values.h"

namespace vorlane {

namespace {

constexpr std::int32_t ListColumns = 8;

void AddLine(Text& text, TextView label, TextView value) {
  text.append(label).append(value).append(LineEnd);
}

void AddNumber(Text& text, TextView label, const std::optional<std::int32_t>& value) {
  AddLine(text, label, value ? DecimalText(*value) : Text());
}

Text MessageOf(TextView module, TextView procedure, TextView extra, const RunError& error) {
  Text message;
  AddLine(message, InterfaceText(TextNumber::PleaseReport), LineEnd);
  AddLine(message, InterfaceText(TextNumber::ErrorNumber), DecimalText(error.Number()));
  AddLine(message, InterfaceText(TextNumber::Description), error.Description());
  Text where(module.empty() ? InterfaceText(TextNumber::UnknownModule) : module);
  where.append(u" (").append(procedure).append(u")");
  AddLine(message, InterfaceText(TextNumber::Module), where);
  if (!extra.empty()) {
    AddLine(message, InterfaceText(TextNumber::ExtraInfo), extra);
  }
  return message;
}

Text TwoDigits(int number) {
  return Text(number < 10 ? u"0" : u"").append(DecimalText(number));
}

Text FileNameFor(DateTime moment) {
  const CalendarDay day = CalendarDayOf(moment);
  Text name = u"ErrorLog_" + DecimalText(day.Year);
  for (const int part :
       {day.Month, day.Day, moment.Seconds / 3600, moment.Seconds / 60 % 60, moment.Seconds % 60}) {
    name.append(u"_").append(TwoDigits(part));
  }
  return name.append(u".txt");
}

Text ProgramLine(const RunValues& values) {
  Text line(ApplicationTitle);
  line.append(u" ").append(VersionText()).append(u" (");
  if (values.ProgramSize) {
    line.append(DecimalText(static_cast<std::int64_t>(*values.ProgramSize)));
  }
  return line.append(u")");
}

Text OperationLine(const RunValues& values) {
  if (!values.OperationIndex) {
    return {};
  }
  return Text(u"(")
      .append(DecimalText(*values.OperationIndex))
      .append(u") ")
      .append(values.OperationText);
}

}  // namespace

RunValues RunValuesOf(const Form& form) {
  RunValues values;
  values.ListCount = form.Rows.Count();
  values.ListColCount = ListColumns;
  if (form.SelectedOperation != 0) {
    values.OperationIndex = form.SelectedOperation;
  }
  values.CurrentPath = form.CurrentPath;
  if (const std::int32_t row = form.Rows.Selected(); row != 0) {
    values.CurrentFile = form.Rows.At(row).Name;
    values.CurrentPreview = form.Rows.At(row).Proposed;
  }
  return values;
}

void ErrorLog::ReportError(TextView module, TextView procedure, TextView extra,
                           const RunError& error) {
  const Text message = MessageOf(module, procedure, extra, error);
  services_.Prompts.Show(BoxIcon::Exclamation, ApplicationTitle, message);
  WriteErrorLog(message);
}

void ErrorLog::WriteErrorLog(TextView message) {
  const Text text = DiagnosticText(message);
  services_.Clipboard.Clear();
  services_.Clipboard.SetText(text);
  WriteFile(text);
}

Text ErrorLog::DiagnosticText(TextView message) {
  RunValues values;
  if (values_) {
    Attempt([&] { values = values_(); });
  }
  const auto setting = [this](TextView key) {
    return services_.Settings.GetSetting(SettingsSection, key, u"");
  };
  Text text;
  AddLine(text, u"", ProgramLine(values));
  AddLine(text, u"StartPath: ", setting(SettingKey::StartPath));
  AddLine(text, u"LastOperation: ", setting(SettingKey::LastOperation));
  AddLine(text, u"WildCards: ", setting(SettingKey::WildCards));
  AddNumber(text, u"Screen Width: ", values.ScreenWidth);
  AddNumber(text, u"Screen Height: ", values.ScreenHeight);
  AddNumber(text, u"ListCount: ", values.ListCount);
  AddNumber(text, u"ListColCount: ", values.ListColCount);
  AddLine(text, u"RenOptIdx: ", OperationLine(values));
  AddLine(text, u"CurrentPath: ", values.CurrentPath);
  AddLine(text, u"CurrentFile: ", values.CurrentFile);
  AddLine(text, u"CurrentPreview: ", values.CurrentPreview);
  AddLine(text, u"ErrMsg:", u"");
  return text.append(message);
}

void ErrorLog::WriteFile(TextView text) {
  const Text name = FileNameFor(services_.Time.Now());
  const std::string bytes = EscapedCodePageBytes(text);
  const auto writeTo = [&](TextView folder) {
    return Attempt([&] {
      const Text path = Text(folder).append(name);
      services_.Files.RemoveFile(path);
      services_.Files.CreateFile(path, bytes);
    });
  };
  if (!writeTo(folders_.Program)) {
    CreatePath(services_.Files, folders_.Fallback, HostPathStyle);
    writeTo(folders_.Fallback);
  }
}

}  // namespace vorlane
