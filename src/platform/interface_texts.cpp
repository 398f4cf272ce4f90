#include "platform/interface_texts.h"

#include <algorithm>

namespace vorlane {

namespace {

struct NumberedText {
  int Number;
  TextView Text;
};

// In ascending order of numbers.
constexpr NumberedText Texts[] = {
    {100, u"en"},
    {1000, u"Ready"},
    {1001, u"Yes"},
    {1002, u"No"},
    {1003, u"Time taken: "},
    {1004, u"Error number: "},
    {1005, u"Description: "},
    {1006, u"Extra Info: "},
    {1007, u"Undo complete"},
    {1008, u"Not Processed"},
    {1009, u"Read Only"},
    {1010, u"File in Use"},
    {1013, u"Data could not be retrieved from the Internet"},
    {1014, u"No Internet connection has been detected, check for Update anyway?"},
    {1015, u"The ID3 Tag is probably invalid"},
    {1017, u"Checking attributes and collecting files/folders..."},
    {1018, u"Adding files, please wait..."},
    {1019, u"ID3v2 exists, ID3v1 exists, loading file..."},
    {1020, u"ID3v2 exists, ID3v1 removed, rewriting file..."},
    {1021,
     u"ID3v2 exists but is too small, incresing size of ID3v2, ID3v1 kept or does not exist, "
     u"rewriting file..."},
    {1022, u"ID3v2 exists, ID3v1 kept or does not exist, updating file..."},
    {1023, u"ID3v2 does not exist, ID3v1 exists, loading file..."},
    {1024, u"ID3v2 does not exist, ID3v1 removed, rewriting file..."},
    {1025, u"ID3v2 does not exist, ID3v1 kept or does not exist, loading file..."},
    {1026, u"ID3v2 does not exist, ID3v1 kept or does not exist, rewriting file..."},
    {1027, u"Please report the following error information:"},
    {1028, u"Module: "},
    {1030, u"Delete all saved settings?"},
    {1032, u"Keyword List"},
    {1033, u" Folder(s)"},
    {1034, u" File(s)"},
    {1035, u"Previewing, please wait..."},
    {1036, u" has been copied to the clipboard"},
    {1037, u"Estimated Time Remaining: "},
    {1038, u" is missing"},
    {1039, u"Move your mouse over a button to get information about it."},
    {1040, u"Move your mouse over the question mark (?) to get information about all controls."},
    {1100, u"Current Name"},
    {1101, u"Proposed Name"},
    {1102, u"Existing Artist"},
    {1103, u"Existing Title"},
    {1104, u"Path"},
    {1200, u"Go/Stop"},
    {1201, u"Applies the selected changes or stops the renaming process"},
    {1202, u"List Files/Folders"},
    {1203, u"Currently listing files"},
    {1204, u"Currently listing folders"},
    {1205, u"Include/Exclude Sub-folders"},
    {1206, u"Currently listing files/folders in this folder only"},
    {1207, u"Currently listing files/folders including all sub-folders"},
    {1208, u"Process One File/All Files"},
    {1209, u"Currently set to process one file/folder at a time"},
    {1210, u"Currently set to process all files/folders at once"},
    {1211, u"Wildcard"},
    {1212, u" "},
    {1213, u"Exit"},
    {1214, u"Help"},
    {1215, u"Undo"},
    {1216, u" "},
    {1217, u"Operation Browser"},
    {1218, u" "},
    {1219, u"Directory Browser"},
    {1300, u"About"},
    {1302, u"OK"},
    {1304, u"Exit"},
    {1400, u"Favorites"},
    {1401, u"Add this folder to Favorites..."},
    {1402, u"Delete a Favorite..."},
    {1403, u"Delete Favorite"},
    {1404, u"Check for Update"},
    {1405, u"Checking..."},
    {2000, u"ID3v1"},
    {2001, u"ID3v2"},
    {2002, u"Error "},
    {2003, u"Error number "},
    {2004, u"Unknown"},
    {2005, u"Version "},
    {2006, u"Open with Vorlane"},
    {2020, u"There was an error. Make sure that Layers <> 0 or 1"},
    {2100, u"Go"},
    {2101, u"Stop"},
    {2102, u"Files"},
    {2103, u"Folders"},
    {2104, u"This folder"},
    {2105, u"Sub-folders"},
    {2106, u"One"},
    {2107, u"All"},
    {2110, u"List of files and folders"},
    {2111, u"Status"},
    {2112, u"Number of files or folders"},
    {2113, u"Progress"},
};

static_assert(std::is_sorted(std::begin(Texts), std::end(Texts),
                             [](const NumberedText& a, const NumberedText& b) {
                               return a.Number < b.Number;
                             }));

}  // namespace

TextView InterfaceText(int number) {
  const auto* found =
      std::lower_bound(std::begin(Texts), std::end(Texts), number,
                       [](const NumberedText& entry, int wanted) { return entry.Number < wanted; });
  return found != std::end(Texts) && found->Number == number ? found->Text : TextView();
}

std::vector<int> InterfaceTextNumbers() {
  std::vector<int> numbers;
  for (const NumberedText& entry : Texts) {
    numbers.push_back(entry.Number);
  }
  return numbers;
}

}  // namespace vorlane
