#pragma once

// Why the settings store's file lacks a value.
enum class KZSaveProblem {
  None,
  DiskFull,      // a quota or a limit for files included
  NotAllowed,    // the folder or its disk is read-only
  FileUnusable,  // the existing file can neither be read nor moved: nothing is saved any more
  Failed,        // anything else; the trace has the system's error text
};
