// What page and program say to each other. The shapes of answers are told in web/page_session.h.

export type Cell = string | number | boolean | null;

export interface Column {
  key?: string;
  head: string;
  tip?: string;
  numeric: boolean;
  first?: boolean;
}

export interface TableData {
  columns: Column[];
  rows: Cell[][];
}

export interface Bar {
  label: string;
  value: number | null;
  deviation?: number | null;
}

export interface Chart {
  title: string;
  caption: string;
  share?: boolean;
  bars?: Bar[];
  labels?: string[];
  lines?: { name: string; values: (number | null)[] }[];
}

export interface Summary {
  title: string;
  headline: string;
  notes: string[];
  trial?: string; // of a simulation: what it says of an allocation like it
  check: { place: number; name: string; why: string }[];
  warnings: string[];
  text: string;
  command: string;
  certainty: boolean;
  charts: Chart[];
  tables: string[];
}

export interface Setting {
  key: string;
  option: string;
  metavar: string;
  group: string;
  help: string;
  flag: boolean;
  alone: boolean;
  required: boolean;
  applies: boolean;
  choices: string[];
  text: string | null;
  shown: string | null;
}

export interface Fault {
  sentence: string;
  file?: string;
  line?: number;
  individual?: string;
  locus?: string;
  found?: string;
}

export interface CheckedLocus {
  name: string;
  in_use: boolean;
  alleles: { size: number; copies: number }[];
  in_step: boolean;
  undefined_genotypes: number;
}

export interface Checked {
  sound: boolean;
  faults: Fault[];
  warnings: Fault[];
  loci: CheckedLocus[];
}

export interface LocusRow {
  locus: string;
  unit: number;
  offspring: string;
  parents: { genotype: string; offset: number; fit: Fit }[];
}

export type Fit = 'unsaid' | 'exact' | 'unmeasured' | 'tolerated' | 'excluded';

export interface OffspringDetail {
  offspring: string;
  tolerance: number;
  pairs: [string, string][];
  pair: number;
  loci: LocusRow[];
}

export interface Told {
  code: number;
  out: string;
  err: string;
}

export interface Look {
  format: string;
  sentence: string;
  populations: boolean;
}

export type Typed = Record<string, string>;
export type Kind = 'allocation' | 'simulation';

/** All that can be asked, with what is answered. */
export interface Asked {
  form: { request: { kind: Kind | 'import'; typed: Typed }; answer: Setting[] };
  look: { request: { file: string }; answer: Look | null };
  check: { request: { kind: Kind; typed: Typed }; answer: Checked };
  run: { request: { kind: Kind; typed: Typed }; answer: Summary };
  table: { request: { name: string }; answer: TableData };
  offspring: { request: { place: number; pair: number }; answer: OffspringDetail };
  record: { request: { file: string }; answer: { kind: Kind; typed: Typed } };
  trial: { request: object; answer: { kind: Kind; typed: Typed; note: string } };
  export: { request: { forms: string }; answer: { files: string[]; warnings: string[] } };
  command: { request: { arguments: string[] }; answer: Told };
}

/** A file of the working folder, or below it, by its path. */
export type Files = Map<string, Uint8Array>;

export type ToWorker =
  | { id: number; start: Uint8Array }
  | { id: number; ask: string }
  | { id: number; put: Files }
  | { id: number; folder: string };

export type FromWorker =
  | { id: number; answer: unknown }
  | { id: number; failure: string }
  | { part: string; note: string; done: number; steps: number }
  | { sentence: string };
