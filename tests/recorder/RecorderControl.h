#pragma once

/// How a test steers the recording library; looked up by name in the library file.
///
/// `call` is a function's name without "TPL" ("GetPageBox"), or one whole call as the log shows it
/// ("GetPageBox(1, 4)"), which wins over the name.
extern "C" {

/// One line per call, in order: "SetPageMode(4)". Texts are quoted, wide ones L"...", buffers are numbered
/// from 1 in the order of their creation. A call with another instance id than the recorder's says so. Valid
/// until the next call of any of the library's functions.
const char* TPLRecorderLog();
void TPLRecorderClearLog();

/// Forgets the log, the buffers and all that was set.
void TPLRecorderReset();

/// Sets what a call gives back. Set several times, the values come one after another and the last one stays;
/// never set, a call gives 0 or an empty text. The length functions answer the true length unless set.
void TPLRecorderReturnNumber(const char* call, double number);
void TPLRecorderReturnWide(const char* call, const wchar_t* characters, int length);
void TPLRecorderReturnBytes(const char* call, const char* bytes, int length);

/// The call throws std::runtime_error, after it is logged, when it comes for the countdown-th time from now.
void TPLRecorderThrow(const char* call, int countdown);
}
