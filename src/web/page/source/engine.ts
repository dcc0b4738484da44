// One running program. Work that should end early ends with its program: then another is started.
import { gunzipSync } from 'fflate';
import { program, worker } from 'kaldo-embedded';
import type { Asked, Files, FromWorker, ToWorker } from './protocol';

/** What the program refuses, in the lines that the command line tells. */
export class Refusal extends Error {
  constructor(readonly lines: string[]) {
    super(lines.join('\n'));
  }
}

export class Stopped extends Error {}

export interface Listener {
  onProgress?(part: string, note: string, done: number, steps: number): void;
  onSentence?(sentence: string): void;
}

type Message = ToWorker extends infer Each
  ? Each extends unknown
    ? Omit<Each, 'id'>
    : never
  : never;

let bytes: Uint8Array | undefined;
let source: string | undefined;

function programBytes(): Uint8Array {
  bytes ??= gunzipSync(Uint8Array.from(atob(program), (each) => each.charCodeAt(0)));
  return bytes;
}

export class Engine {
  private readonly worker: Worker;
  private readonly waiting = new Map<
    number,
    { resolve(value: unknown): void; reject(error: Error): void }
  >();
  private readonly started: Promise<unknown>;
  private nextId = 0;
  listener: Listener = {};

  constructor() {
    source ??= URL.createObjectURL(new Blob([worker], { type: 'text/javascript' }));
    this.worker = new Worker(source);
    this.worker.onmessage = ({ data }: MessageEvent<FromWorker>): void => this.hear(data);
    this.worker.onerror = (event): void => this.failAll(new Error(event.message));
    this.started = this.send({ start: programBytes() });
  }

  async ask<Name extends keyof Asked>(
    name: Name,
    request: Asked[Name]['request'],
  ): Promise<Asked[Name]['answer']> {
    await this.started;
    const answer = await this.send({ ask: JSON.stringify({ ask: name, ...request }) });
    if (answer !== null && typeof answer === 'object' && 'problem' in answer) {
      throw new Refusal(answer.problem as string[]);
    }
    return answer as Asked[Name]['answer'];
  }

  async put(files: Files): Promise<void> {
    await this.started;
    await this.send({ put: files });
  }

  async filesIn(folder: string): Promise<Files> {
    await this.started;
    return (await this.send({ folder })) as Files;
  }

  end(): void {
    this.worker.terminate();
    this.failAll(new Stopped());
  }

  private send(message: Message): Promise<unknown> {
    const id = this.nextId++;
    return new Promise((resolve, reject) => {
      this.waiting.set(id, { resolve, reject });
      this.worker.postMessage({ id, ...message });
    });
  }

  private hear(message: FromWorker): void {
    if ('part' in message) {
      this.listener.onProgress?.(message.part, message.note, message.done, message.steps);
    } else if ('sentence' in message) {
      this.listener.onSentence?.(message.sentence);
    } else {
      const waiting = this.waiting.get(message.id);
      this.waiting.delete(message.id);
      if ('failure' in message) {
        waiting?.reject(new Error(message.failure));
      } else {
        waiting?.resolve(message.answer);
      }
    }
  }

  private failAll(error: Error): void {
    this.waiting.forEach(({ reject }) => reject(error));
    this.waiting.clear();
  }
}
