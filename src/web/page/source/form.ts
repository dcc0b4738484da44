// The form of a run, made from the settings that the program declares.
import { box, byId, field, h } from './dom';
import type { CheckedLocus, Setting } from './protocol';
import type { Study } from './study';

/** What a biologist calls the settings that are seen first; the others go by their options. */
const kLabels: Record<string, string> = {
  parents: 'Collected parents',
  males: 'Collected males',
  females: 'Collected females',
  offspring: 'Offspring',
  loci: 'Names of the loci',
  error: 'Model of typing errors',
  tolerance: 'Maximal offset tolerance (repeats)',
  sequence: 'Cumulative sequence of loci',
  project: 'Name of the results',
  collected: 'Collected parents',
  pseudo_collected_sample: 'Sample of the parents to be collected',
  pseudo_collected: 'Parents to be collected',
  uncollected_sample: 'Sample of parents that are not collected',
  uncollected: 'Parents that are not collected',
  iterations: 'Iterations',
  offspring_per_iteration: 'Offspring per iteration',
  allocate_with: 'Allocated with',
  seed: 'Seed of the random numbers',
};

const kFirst = new Set(['error', 'tolerance', 'iterations', 'offspring_per_iteration', 'seed']);
const kElsewhere = new Set(['use', 'sexed', 'threads', 'replace']);
const kErrorKinds = ['none', 'uniform', 'nonuniform'];

export class StudyForm {
  settings: Setting[] = [];
  private dropped = new Set<string>(); // loci that are not in use

  constructor(
    private readonly study: Study,
    private readonly onChange: () => void,
  ) {}

  /** Shows the settings that play a role. */
  show(settings: Setting[]): void {
    this.settings = settings;
    const shown = settings.filter((each) => each.applies && !kElsewhere.has(each.key));
    const isFirst = (each: Setting): boolean => kFirst.has(each.key) || this.isOfParents(each);
    const files = shown.filter((each) => each.metavar === 'FILE');
    const isMain = (each: Setting): boolean => each.required;
    byId('file-fields').replaceChildren(
      ...files.filter(isMain).map((each) => this.fileField(each)),
    );
    byId('more-files').replaceChildren(
      ...files.filter((each) => !isMain(each)).map((each) => this.fileField(each)),
    );
    byId('more-files-part').hidden = files.every(isMain);
    const others = shown.filter((each) => each.metavar !== 'FILE');
    byId('first-fields').replaceChildren(
      ...others.filter(isFirst).map((each) => this.control(each)),
    );
    byId('more-fields').replaceChildren(
      ...others.filter((each) => !isFirst(each)).map((each) => this.control(each)),
    );
  }

  showFiles(onRemove: (path: string) => void): void {
    const items = [...this.study.files].map(([path, bytes]) =>
      h(
        'li',
        {},
        h('span', { className: 'path', textContent: path }),
        h('span', { className: 'hint', textContent: ` ${sizeText(bytes.length)} ` }),
        h('button', {
          type: 'button',
          className: 'small',
          textContent: 'Remove',
          ariaLabel: `Remove ${path}`,
          onclick: () => onRemove(path),
        }),
      ),
    );
    byId('files').replaceChildren(...items);
  }

  /** Which of the loci are in use. */
  showLoci(loci: CheckedLocus[]): void {
    const names = loci.map((locus) => locus.name);
    const used = this.study.value('use')?.split(',');
    this.dropped = new Set(used ? names.filter((name) => !used.includes(name)) : []);
    const boxes = loci.map((locus) =>
      box(
        `${locus.name} (${locus.alleles.length} alleles${locus.in_step ? '' : ', out of step'})`,
        !this.dropped.has(locus.name),
        (on) => {
          this.dropped[on ? 'delete' : 'add'](locus.name);
          const kept = names.filter((name) => !this.dropped.has(name));
          this.study.set('use', this.dropped.size > 0 ? kept.join(',') : undefined);
          this.onChange();
        },
      ),
    );
    byId('loci').replaceChildren(...boxes);
    byId('loci-part').hidden = loci.length === 0;
  }

  private isOfParents(setting: Setting): boolean {
    return setting.group.startsWith('Parents');
  }

  private label(setting: Setting): string {
    return kLabels[setting.key] ?? setting.option.slice(2).replaceAll('-', ' ');
  }

  private fileField(setting: Setting): HTMLElement {
    const select = h('select', {}, h('option', { value: '', textContent: 'choose a file' }));
    for (const path of this.study.files.keys()) {
      select.append(h('option', { value: path, textContent: path }));
    }
    select.value = this.study.value(setting.key) ?? '';
    select.onchange = (): void => {
      this.study.set(setting.key, select.value || undefined);
      this.onChange();
    };
    select.name = setting.key;
    return field(this.label(setting), select, setting.help);
  }

  private control(setting: Setting): HTMLElement {
    if (setting.key === 'error') {
      return this.errorModel(setting);
    }
    if (setting.flag || setting.alone) {
      return this.flag(setting);
    }
    const text = this.study.value(setting.key) ?? (setting.required ? setting.shown : null);
    if (text !== null && this.study.value(setting.key) === undefined) {
      this.study.set(setting.key, text);
    }
    const isWhole = ['N', 'K', 'S'].includes(setting.metavar);
    const input = h('input', {
      type: 'text',
      name: setting.key,
      value: text ?? setting.text ?? '',
      inputMode: isWhole ? 'numeric' : 'text',
      autocomplete: 'off',
    });
    input.onchange = (): void => {
      const isDefault = input.value === '' || input.value === setting.text;
      this.study.set(setting.key, isDefault ? undefined : input.value);
      this.onChange();
    };
    return field(this.label(setting), input, setting.help);
  }

  /** A flag; one that may have a value has a field beside it. */
  private flag(setting: Setting): HTMLElement {
    const text = h('input', {
      type: 'text',
      name: setting.key,
      value: this.study.value(setting.key) ?? '',
      ariaLabel: `${this.label(setting)}: ${setting.metavar}`,
    });
    const isOn = this.study.value(setting.key) !== undefined;
    text.hidden = !setting.alone || !isOn;
    const change = (on: boolean): void => {
      text.hidden = !setting.alone || !on;
      this.study.set(setting.key, on ? text.value : undefined);
      this.onChange();
    };
    text.onchange = (): void => change(true);
    const flag = box(this.label(setting), isOn, change);
    flag.querySelector('input')!.name = `${setting.key}-on`;
    return h(
      'div',
      { className: 'field' },
      flag,
      text,
      h('p', { className: 'hint', textContent: setting.help }),
    );
  }

  private errorModel(setting: Setting): HTMLElement {
    const [kind = '', numbers = ''] = (this.study.value('error') ?? setting.text ?? '').split('=');
    const select = h('select', { name: 'error' });
    kErrorKinds.forEach((each) => select.append(h('option', { value: each, textContent: each })));
    select.value = kind;
    const input = h('input', {
      type: 'text',
      name: 'error-numbers',
      value: numbers,
      ariaLabel: 'Probabilities of the model of errors',
      hidden: kind === 'none',
    });
    const change = (): void => {
      input.hidden = select.value === 'none';
      const text = input.value && !input.hidden ? `${select.value}=${input.value}` : select.value;
      this.study.set('error', text === setting.text ? undefined : text);
      this.onChange();
    };
    select.onchange = (): void => {
      input.value = select.value === kind ? numbers : '';
      change();
    };
    input.onchange = change;
    const made = field(this.label(setting), select, setting.help);
    select.after(input);
    return made;
  }
}

export function sizeText(bytes: number): string {
  return bytes < 1000 ? `${bytes} bytes` : `${(bytes / 1000).toFixed(bytes < 1e5 ? 1 : 0)} kB`;
}

/** Radio buttons of which each does something. */
export function choices(
  id: string,
  all: { text: string; chosen: boolean; choose(): void }[],
): void {
  byId(id).replaceChildren(
    ...all.map(({ text, chosen, choose }) => {
      const input = h('input', { type: 'radio', name: id, checked: chosen, onchange: choose });
      return h('label', { className: 'box' }, input, ' ', text);
    }),
  );
}
