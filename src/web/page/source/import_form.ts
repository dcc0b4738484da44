// Files of other programs: what each of them is, and the choices of their conversion.
import { box, button, byId, field, h } from './dom';
import type { Engine } from './engine';
import type { Files, Look, Setting } from './protocol';
import { refusalBox } from './results';

const kFolder = 'imported';
const kRoles: [value: string, text: string][] = [
  ['', 'parents and offspring together'],
  ['parents', 'parents'],
  ['males', 'males'],
  ['females', 'females'],
  ['offspring', 'offspring'],
  ['none', 'not converted'],
];
const kFirst = ['offspring-populations', 'role', 'id', 'sex', 'group', 'missing-parents'];
const kElsewhere = new Set(['to', 'replace', 'parents', 'males', 'females', 'offspring']);

export class ImportForm {
  private readonly found = new Map<string, { look: Look; role: string }>();
  private readonly typed = new Map<string, string>();

  constructor(
    private readonly engine: Engine,
    private readonly onImported: (files: Files, hasUndefinedParents: boolean) => void,
  ) {}

  /** Recognises the files of other programs among these. */
  async look(paths: string[]): Promise<void> {
    for (const file of paths) {
      const look = await this.engine.ask('look', { file });
      if (look) {
        this.found.set(file, { look, role: roleOf(file) });
      }
    }
    await this.show();
  }

  forget(path: string): void {
    this.found.delete(path);
    void this.show();
  }

  private async show(): Promise<void> {
    byId('import-part').hidden = this.found.size === 0;
    if (this.found.size === 0) {
      return;
    }
    const settings = await this.engine.ask('form', { kind: 'import', typed: {} });
    const shown = settings.filter((each) => !kElsewhere.has(each.key));
    const isFirst = (each: Setting): boolean => kFirst.includes(each.key);
    byId('import-files').replaceChildren(
      ...[...this.found].map(([path, each]) => this.fileField(path, each)),
    );
    byId('import-fields').replaceChildren(
      ...shown.filter(isFirst).map((each) => this.control(each)),
    );
    byId('import-more').replaceChildren(
      ...shown.filter((each) => !isFirst(each)).map((each) => this.control(each)),
    );
    byId('import-run').replaceChildren(button('Convert', () => void this.convert(), 'convert'));
  }

  private fileField(path: string, each: { look: Look; role: string }): HTMLElement {
    const select = h('select', { name: `role of ${path}` });
    kRoles.forEach(([value, text]) => select.append(h('option', { value, textContent: text })));
    select.value = each.role;
    select.onchange = (): void => {
      each.role = select.value;
    };
    return field(path, select, each.look.sentence);
  }

  private control(setting: Setting): HTMLElement {
    const { key } = setting;
    const put = (text: string | undefined): void => {
      if (text === undefined) {
        this.typed.delete(key);
      } else {
        this.typed.set(key, text);
      }
    };
    const label = key.replaceAll('-', ' ');
    if (setting.flag) {
      const flag = box(label, this.typed.has(key), (on) => put(on ? '' : undefined));
      return h(
        'div',
        { className: 'field' },
        flag,
        h('p', { className: 'hint', textContent: setting.help }),
      );
    }
    const value = this.typed.get(key) ?? '';
    const input =
      setting.choices.length > 0
        ? choiceOf(setting, value)
        : h('input', { type: 'text', name: key, value });
    input.onchange = (): void => put(input.value || undefined);
    return field(label, input, setting.help);
  }

  private arguments(): string[] {
    const named: string[] = [];
    const plain: string[] = [];
    for (const [path, { role }] of this.found) {
      if (role === '') {
        plain.push(path);
      } else if (role !== 'none') {
        named.push(`--${role}`, path);
      }
    }
    for (const [key, text] of this.typed) {
      named.push(`--${key}`, ...(text === '' ? [] : [text]));
    }
    return ['import', ...plain, ...named, '--to', kFolder, '--replace'];
  }

  private async convert(): Promise<void> {
    const told = await this.engine.ask('command', { arguments: this.arguments() });
    const place = byId('import-told');
    const lines = (text: string): string[] => text.split('\n').filter((line) => line !== '');
    if (told.code !== 0) {
      place.replaceChildren(refusalBox(new Error(told.err)));
      place
        .querySelector('.problem')
        ?.replaceChildren(...lines(told.err).map((textContent) => h('p', { textContent })));
      return;
    }
    place.replaceChildren(h('pre', { textContent: told.err + told.out, tabIndex: 0 }));
    const keeps = this.typed.get('missing-parents') === 'keep';
    this.onImported(await this.engine.filesIn(kFolder), keeps);
  }
}

function choiceOf(setting: Setting, value: string): HTMLSelectElement {
  const select = h('select', { name: setting.key });
  const unchosen = h('option', { value: '', textContent: setting.text || 'not chosen' });
  const others = setting.choices.filter((each) => each !== setting.text);
  select.append(unchosen, ...others.map((each) => h('option', { textContent: each })));
  select.value = value;
  return select;
}

function roleOf(path: string): string {
  const name = path.toLowerCase();
  const known: [string, RegExp][] = [
    ['offspring', /offspring|young|juvenile|progeny|fry/],
    ['females', /female|mother|dam/],
    ['males', /male|father|sire/],
    ['parents', /parent|adult|breeder/],
  ];
  return known.find(([, pattern]) => pattern.test(name))?.[0] ?? '';
}
