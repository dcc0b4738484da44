// The thread in which the program runs. It sees a folder of its own in memory, never the disk.
import createKaldo from 'kaldo-program';
import type { Files, FromWorker, ToWorker } from './protocol';

interface FileSystem {
  mkdirTree(path: string): void;
  chdir(path: string): void;
  readdir(path: string): string[];
  isDir(mode: number): boolean;
  stat(path: string): { mode: number };
  readFile(path: string): Uint8Array;
  writeFile(path: string, bytes: Uint8Array): void;
  analyzePath(path: string): { exists: boolean };
}

interface Program {
  FS: FileSystem;
  ccall(name: string, result: string, kinds: string[], values: string[]): string;
}

const kFolder = '/study';
const kPause = 100; // milliseconds between two tellings of progress
let program: Program;

const post = (message: FromWorker): void => self.postMessage(message);

const progress = {
  part: '',
  note: '', // where in the part the run is
  done: 0,
  steps: 0,
  told: 0,
  tell(): void {
    this.told = performance.now();
    post({ part: this.part, note: this.note, done: this.done, steps: this.steps });
  },
};

async function start(wasmBinary: Uint8Array): Promise<null> {
  program = await createKaldo<Program>({
    wasmBinary,
    beginsPart(part: string, steps: number): void {
      Object.assign(progress, { part, steps, note: '', done: 0 });
      progress.tell();
    },
    isAt(note: string): void {
      progress.note = note;
    },
    doesSteps(steps: number): void {
      progress.done += steps;
      if (performance.now() - progress.told >= kPause) {
        progress.tell();
      }
    },
    tells: (sentence: string): void => post({ sentence }),
  });
  program.FS.mkdirTree(kFolder);
  program.FS.chdir(kFolder);
  return null;
}

function put(files: Files): null {
  for (const [name, bytes] of files) {
    const path = `${kFolder}/${name}`;
    program.FS.mkdirTree(path.slice(0, path.lastIndexOf('/')));
    program.FS.writeFile(path, bytes);
  }
  return null;
}

/** All files below a folder, by their paths from the working folder. */
function filesIn(folder: string): Files {
  const files: Files = new Map();
  const path = `${kFolder}/${folder}`;
  if (!program.FS.analyzePath(path).exists) {
    return files;
  }
  for (const name of program.FS.readdir(path)) {
    if (name === '.' || name === '..') {
      continue;
    }
    const inner = `${folder}/${name}`;
    if (program.FS.isDir(program.FS.stat(`${kFolder}/${inner}`).mode)) {
      filesIn(inner).forEach((bytes, key) => files.set(key, bytes));
    } else {
      files.set(inner, program.FS.readFile(`${kFolder}/${inner}`));
    }
  }
  return files;
}

function answer(message: ToWorker): unknown {
  if ('start' in message) {
    return start(message.start);
  }
  if ('put' in message) {
    return put(message.put);
  }
  if ('folder' in message) {
    return filesIn(message.folder);
  }
  return JSON.parse(program.ccall('KaldoAnswer', 'string', ['string'], [message.ask]));
}

self.onmessage = async ({ data }: MessageEvent<ToWorker>): Promise<void> => {
  try {
    post({ id: data.id, answer: await answer(data) });
  } catch (error) {
    post({ id: data.id, failure: error instanceof Error ? error.message : String(error) });
  }
};
