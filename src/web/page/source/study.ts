// The files and choices of a user, as the program wants them typed.
import type { Files, Kind, Setting, Typed } from './protocol';

/** Which setting a file is meant for, by its name: what is tried first is surest. */
const kNamedFor: [key: string, name: RegExp][] = [
  ['known-mother', /known.?mother/],
  ['offspring-groups', /offspring.?groups/],
  ['candidates', /^candidates/],
  ['sexes', /^sexes/],
  ['females_pseudo_collected_sample', /sample.*(female|dam)/],
  ['males_pseudo_collected_sample', /sample.*(male|sire)/],
  ['loci', /loci|locus|marker/],
  ['offspring', /offspring|young|juvenile|progeny|fry|larva|fingerling/],
  ['females', /female|mother|dam/],
  ['males', /male|father|sire/],
  ['parents', /parent|adult|breeder/],
];

/** What a file of the left is in a simulation. */
const kInSimulations: Record<string, string[]> = {
  loci: ['loci'],
  parents: ['collected', 'pseudo_collected_sample', 'uncollected_sample'],
  males: ['males_collected', 'males_uncollected_sample', 'males_pseudo_collected_sample'],
  females: ['females_collected', 'females_uncollected_sample', 'females_pseudo_collected_sample'],
  males_pseudo_collected_sample: ['males_pseudo_collected_sample', 'males_uncollected_sample'],
  females_pseudo_collected_sample: [
    'females_pseudo_collected_sample',
    'females_uncollected_sample',
  ],
};

export const kDefaultProject = 'results';

export class Study {
  kind: Kind = 'allocation';
  sexed = false;
  draws = false; // simulations: parents are drawn from a sample, before the field work
  readonly files: Files = new Map();
  private readonly texts: Record<Kind, Map<string, string>> = {
    allocation: new Map(),
    simulation: new Map(),
  };

  value(key: string): string | undefined {
    return this.texts[this.kind].get(key);
  }

  /** Without a text the setting is as by default. */
  set(key: string, text: string | undefined): void {
    if (text === undefined) {
      this.texts[this.kind].delete(key);
    } else {
      this.texts[this.kind].set(key, text);
    }
  }

  replaceSettings(kind: Kind, typed: Typed): void {
    this.texts[kind] = new Map(Object.entries(typed));
  }

  get project(): string {
    return this.value('project') || kDefaultProject;
  }

  /** Takes the settings of an earlier run over; its files go by their names alone. */
  repeat(kind: Kind, typed: Typed): void {
    this.kind = kind;
    this.sexed = 'sexed' in typed || 'males' in typed;
    this.draws = Object.keys(typed).some((key) => key.includes('pseudo_collected'));
    const found = Object.entries(typed).map(([key, text]): [string, string] => {
      const name = text.slice(Math.max(text.lastIndexOf('/'), text.lastIndexOf('\\')) + 1);
      return [key, this.files.has(name) && !this.files.has(text) ? name : text];
    });
    this.replaceSettings(kind, Object.fromEntries(found));
  }

  /** Takes files up; each goes where its name says, unless something is there. */
  add(files: Files): void {
    for (const [path, bytes] of files) {
      this.files.set(path, bytes);
      this.guess(path);
    }
    const has = (key: string): boolean => this.texts.allocation.has(key);
    if (has('males') && has('females') && !has('parents')) {
      this.sexed = true;
    }
  }

  /** Converted parents with undefined loci are only of use to runs that allow them. */
  allowUndefinedParents(allowed: boolean): void {
    for (const texts of Object.values(this.texts)) {
      texts.delete('allow_undefined_parents');
      if (allowed) {
        texts.set('allow_undefined_parents', '');
      }
    }
  }

  remove(path: string): void {
    this.files.delete(path);
    for (const texts of Object.values(this.texts)) {
      for (const [key, text] of texts) {
        if (text === path) {
          texts.delete(key);
        }
      }
    }
  }

  private guess(path: string): void {
    const name = path.slice(path.lastIndexOf('/') + 1).toLowerCase();
    const key = kNamedFor.find(([, pattern]) => pattern.test(name))?.[0];
    if (!key) {
      return;
    }
    const isImported = path.includes('/');
    const put = (texts: Map<string, string>, place: string): void => {
      if (isImported || !texts.get(place)) {
        texts.set(place, path);
      }
    };
    put(this.texts.allocation, key);
    (kInSimulations[key] ?? []).forEach((place) => put(this.texts.simulation, place));
  }

  /** What was typed of these settings, and what says which flow is meant. */
  typed(settings: Setting[]): Typed {
    const typed: Typed = this.markers();
    for (const { key, applies } of settings) {
      const text = this.value(key);
      if (applies && text !== undefined) {
        typed[key] = text;
      }
    }
    if (settings.length > 0) {
      typed['project'] = this.project;
    }
    return typed;
  }

  private markers(): Typed {
    if (this.kind === 'allocation') {
      return this.sexed ? { males: '', females: '' } : {};
    }
    const drawn: Typed = this.sexed
      ? { males_pseudo_collected_sample: '', females_pseudo_collected_sample: '' }
      : { pseudo_collected_sample: '' };
    return { ...(this.sexed ? { sexed: '' } : {}), ...(this.draws ? drawn : {}) };
  }
}
