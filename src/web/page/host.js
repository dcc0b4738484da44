// What the compiled program calls of the script around it; the page gives these functions.
mergeInto(LibraryManager.library, {
  KaldoBeginsPart: function (name, steps) {
    Module.beginsPart(UTF8ToString(name), steps);
  },
  KaldoIsAt: function (note) {
    Module.isAt(UTF8ToString(note));
  },
  KaldoDoesSteps: function (steps) {
    Module.doesSteps(steps);
  },
  KaldoTells: function (sentence) {
    Module.tells(UTF8ToString(sentence));
  },
});
