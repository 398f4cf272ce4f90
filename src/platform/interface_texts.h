// The words of the interface: one table of texts, each with a number. No other place holds one of
// them, so that another language is another table.
//
// The numbers below 2000 come in groups: 1200 to 1219 are the tool tips, for example. Those from
// 2000 on are in no group.
#pragma once

#include "platform/text.h"

namespace vorlane {

// Empty for a number that isn't in the table.
TextView InterfaceText(int number);

// Every number of the table, ascending.
std::vector<int> InterfaceTextNumbers();

namespace TextNumber {

inline constexpr int Language = 100;

inline constexpr int Ready = 1000;
inline constexpr int Yes = 1001;
inline constexpr int No = 1002;
inline constexpr int TimeTaken = 1003;
inline constexpr int ErrorNumber = 1004;
inline constexpr int Description = 1005;
inline constexpr int ExtraInfo = 1006;
inline constexpr int UndoComplete = 1007;
inline constexpr int ReadOnly = 1009;
inline constexpr int FileInUse = 1010;
inline constexpr int AskCheckWithoutConnection = 1014;
inline constexpr int TagProbablyInvalid = 1015;
inline constexpr int CollectingFiles = 1017;
inline constexpr int AddingFiles = 1018;

// What WriteID3v2 is doing: whether the file has each of the two tags, and what becomes of them.
inline constexpr int V2AndV1Loading = 1019;
inline constexpr int V2WithoutV1Rewriting = 1020;
inline constexpr int V2TooSmallRewriting = 1021;
inline constexpr int V2Updating = 1022;
inline constexpr int NoV2ButV1Loading = 1023;
inline constexpr int NoV2WithoutV1Rewriting = 1024;
inline constexpr int NoV2Loading = 1025;
inline constexpr int NoV2Rewriting = 1026;

inline constexpr int PleaseReport = 1027;
inline constexpr int Module = 1028;
inline constexpr int AskDeleteSettings = 1030;
inline constexpr int KeywordList = 1032;
inline constexpr int Folders = 1033;
inline constexpr int Files = 1034;
inline constexpr int Previewing = 1035;
inline constexpr int CopiedToClipboard = 1036;
inline constexpr int TimeRemaining = 1037;
inline constexpr int IsMissing = 1038;
inline constexpr int PointAtButton = 1039;
inline constexpr int PointAtQuestionMark = 1040;

// The headings of the list.
inline constexpr int CurrentName = 1100;
inline constexpr int ProposedName = 1101;
inline constexpr int ExistingArtist = 1102;
inline constexpr int ExistingTitle = 1103;
inline constexpr int Path = 1104;

// Titles and texts of the tool tips: 1200 to 1219.
inline constexpr int FirstToolTip = 1200;
inline constexpr int ToolTipCount = 20;

inline constexpr int About = 1300;
inline constexpr int Ok = 1302;
inline constexpr int Exit = 1304;

inline constexpr int Favorites = 1400;
inline constexpr int AddFavorite = 1401;
inline constexpr int DeleteAFavorite = 1402;
inline constexpr int DeleteFavorite = 1403;
inline constexpr int CheckForUpdate = 1404;
inline constexpr int Checking = 1405;

inline constexpr int ID3v1 = 2000;
inline constexpr int ID3v2 = 2001;
inline constexpr int ErrorTitle = 2002;
inline constexpr int ErrorNumberOfDate = 2003;
inline constexpr int UnknownModule = 2004;
inline constexpr int Version = 2005;
inline constexpr int OpenWithVorlane = 2006;
inline constexpr int TooFewLayers = 2020;  // asked of a frame that is shaded across its width

// Captions of buttons that have no picture.
inline constexpr int Go = 2100;
inline constexpr int Stop = 2101;
inline constexpr int ListFiles = 2102;
inline constexpr int ListFolders = 2103;
inline constexpr int ThisFolderOnly = 2104;
inline constexpr int IncludeSubFolders = 2105;
inline constexpr int DoOne = 2106;
inline constexpr int DoAll = 2107;

// What assistive programs call the controls that have no other name.
inline constexpr int FileListName = 2110;
inline constexpr int StatusName = 2111;
inline constexpr int FileStatusName = 2112;
inline constexpr int ProgressName = 2113;

}  // namespace TextNumber

}  // namespace vorlane
